"""The expressions of the tables (sizes, minima) in C++."""

from __future__ import annotations

import ast
import re
from collections.abc import Callable

OPERATORS = {
    ast.Add: "+", ast.Sub: "-", ast.Mult: "*", ast.FloorDiv: "/", ast.Eq: "==", ast.NotEq: "!=",
    ast.Lt: "<", ast.LtE: "<=", ast.Gt: ">", ast.GtE: ">=", ast.And: "&&", ast.Or: "||",
}  # fmt: skip


def cpp(text: str, name: Callable[[str], str], integer: str) -> str:
    """`name` tells what a name is in C++; max and min are those of the type `integer`. In a size, m|n is one or the other."""

    def part(node: ast.AST) -> str:
        match node:
            case ast.Name():
                return name(node.id)
            case ast.Constant():
                return f"'{node.value}'" if isinstance(node.value, str) else str(node.value)
            case ast.BinOp():
                return f"({part(node.left)} {OPERATORS[type(node.op)]} {part(node.right)})"
            case ast.UnaryOp(op=ast.USub()):
                return f"(-{part(node.operand)})"
            case ast.Compare(comparators=[ast.Constant(value=str(letters))], ops=[ast.In()]):
                return "(" + " || ".join(f"{part(node.left)} == '{letter}'" for letter in letters) + ")"
            case ast.Compare(comparators=[right], ops=[operator]):
                return f"({part(node.left)} {OPERATORS[type(operator)]} {part(right)})"
            case ast.BoolOp():
                return "(" + f" {OPERATORS[type(node.op)]} ".join(part(value) for value in node.values) + ")"
            case ast.IfExp():
                return f"({part(node.test)} ? {part(node.body)} : {part(node.orelse)})"
            case ast.Call():
                return f"std::{node.func.id}<{integer}>({{{', '.join(part(argument) for argument in node.args)}}})"
        raise ValueError(f"'{text}' has no form in C++")

    return part(ast.parse(re.sub(r"(\w+)\|(\w+)", r"max(\1,\2)", text), mode="eval").body)
