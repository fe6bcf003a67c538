"""What must hold of the tables as a whole: names that exist, meanings for all arguments, constants that do not collide."""

from __future__ import annotations

import ast
import re
from fnmatch import fnmatchcase

from generator import model
from generator.model import Family, Note, Routine, Value

INTEGER = re.compile(r"-?\d+\Z")
CONSTANT = re.compile(r"[A-Z]\w*\Z")
SHAPE_NAME = re.compile(r"(?<![\w.])[A-Za-z]\w*")

# What the expression of a minimum may be made of.
EXPRESSION_NODES = (
    ast.Expression, ast.Name, ast.Load, ast.Constant, ast.BinOp, ast.UnaryOp, ast.Call, ast.Subscript, ast.IfExp,
    ast.Compare, ast.BoolOp, ast.And, ast.Or, ast.Not, ast.Add, ast.Sub, ast.Mult, ast.FloorDiv, ast.USub,
    ast.Eq, ast.NotEq, ast.Lt, ast.LtE, ast.Gt, ast.GtE, ast.In, ast.NotIn,
)  # fmt: skip


class Checker:
    def __init__(self) -> None:
        self.faults: list[str] = []
        self.exports: dict[str, str] = {}
        self.constants: dict[str, Value | model.Entry] = {}

    def fault(self, where: str, reason: str) -> None:
        self.faults.append(f"{where}: {reason}")

    def check_family(self, family: Family) -> None:
        for routine in family.routines:
            self.check_routine(family, routine)
        self.check_notes(family)
        self.check_statuses(family)
        self.check_parameters(family)
        self.check_constants(family)

    # ---- routines ----

    def check_routine(self, family: Family, routine: Routine) -> None:
        def fault(reason: str) -> None:
            self.fault(routine.where, reason)

        other = family.routine(routine.like) if routine.like else None
        if routine.like and (other is None or other is routine or other.like):
            fault(f"'{routine.name}' is like '{routine.like}', which is no other routine that speaks for itself")
        elif other and not routine.summary:
            routine.summary = other.summary
        if not routine.summary:
            fault(f"'{routine.name}' has no summary")
        if routine.is_fortran and (routine.result or not routine.argument("info")):
            fault("a Fortran routine must have an argument 'info' and no result")
        if routine.implementation and not family.facade:
            fault("the table names no 'facade' for its implementations")
        for name in routine.export_names:
            if name in self.exports:
                fault(f"'{name}' is exported at {self.exports[name]} already")
            self.exports[name] = routine.where
        known = {argument.name for argument in routine.arguments} | {"max", "min"} | set(family.quantities)
        for argument in routine.arguments:
            for name in SHAPE_NAME.findall(argument.shape):
                if name not in known:
                    fault(f"argument '{argument.name}': its shape names '{name}', which is no argument")
        for name, minimum in routine.minima.items():
            if not routine.argument(name):
                self.fault(minimum.where, f"'{routine.name}' has no argument '{name}'")
            self.check_expression(family, routine, minimum, known)
        if routine.finite:
            self.check_finite(routine, routine.finite, known)

        for array, _, names in routine.sound:
            for name in [array, *names]:
                if not routine.is_fortran or not routine.argument(name):
                    fault(f"'sound' needs a Fortran routine with an argument '{name}'")

    def check_finite(self, routine: Routine, check: model.FiniteCheck, known: set[str]) -> None:
        if not routine.is_fortran or not check.status:
            self.fault(check.where, "'finite' needs a Fortran routine, and a line 'else info=EXPRESSION ...' below it")
        for part in check.examined + check.filled:
            argument = routine.argument(part.array)
            if not argument or not argument.is_array:
                self.fault(check.where, f"'{routine.name}' has no array '{part.array}'")
            for name in SHAPE_NAME.findall(",".join(part.sizes + [check.status])):
                if name not in known:
                    self.fault(check.where, f"'{name}' is no argument of '{routine.name}'")

    def check_expression(self, family: Family, routine: Routine, minimum: Value, known: set[str]) -> None:
        try:
            nodes = list(ast.walk(ast.parse(minimum.value, mode="eval")))
        except SyntaxError:
            self.fault(minimum.where, f"'{minimum.value}' is no expression")
            return
        for node in nodes:
            if not isinstance(node, EXPRESSION_NODES):
                self.fault(minimum.where, f"'{minimum.value}': no minimum is made of '{type(node).__name__}'")
            elif isinstance(node, ast.Name) and node.id not in known:
                self.fault(minimum.where, f"'{minimum.value}' names '{node.id}', which is no argument")
            elif isinstance(node, ast.Compare) and isinstance(node.left, ast.Name):
                self.check_letters(family, routine, minimum, node)

    def check_letters(self, family: Family, routine: Routine, minimum: Value, node: ast.Compare) -> None:
        """`uplo == 'U'`, `side in 'LB'`: letters that the option has."""
        note = family.note(routine, node.left.id)
        options = {option.value for option in note.options} if note else set()
        for item in node.comparators:
            if isinstance(item, ast.Constant) and isinstance(item.value, str) and not set(item.value) <= options:
                self.fault(minimum.where, f"'{minimum.value}': '{item.value}' is no option of '{node.left.id}'")

    # ---- meanings ----

    def check_notes(self, family: Family) -> None:
        used = {argument.name for routine in family.routines for argument in routine.arguments}
        for name, note in family.notes.items():
            if name not in used:
                self.fault(note.where, f"no routine has an argument '{name}'")
        for routine in family.routines:
            for name, note in routine.notes.items():
                if not routine.argument(name) and not (name == model.RESULT and routine.result):
                    self.fault(note.where, f"'{routine.name}' has no argument '{name}'")
            for argument in routine.arguments:
                note = family.note(routine, argument.name)
                if note and note.options:
                    self.check_options(routine, argument, note)

    def check_options(self, routine: Routine, argument: model.Argument, note: Note) -> None:
        if argument.type is model.TYPES["text"]:
            return  # a word each
        is_character = argument.type is model.TYPES["char"]
        if not is_character and argument.type not in (model.TYPES["int"], model.TYPES["logical"]):
            self.fault(note.where, f"'{argument.name}' of '{routine.name}' is neither a character nor an integer")
            return
        for option in note.options:
            if is_character and not argument.is_array and len(option.value) != 1:
                self.fault(option.where, f"'{option.value}' is not one character")
            elif not is_character and not INTEGER.match(option.value):
                self.fault(option.where, f"'{option.value}' is no integer")

    def check_meanings(self, family: Family) -> None:
        missing = [
            f"{argument.name} of {routine.name}"
            for routine in family.routines
            for argument in routine.arguments
            if not family.note(routine, argument.name)
        ]
        if missing:
            names = ", ".join(missing[:5]) + (", ..." if len(missing) > 5 else "")
            self.fault(f"exports/tables/{family.name}.table", f"{len(missing)} arguments have no meaning: {names}")

    # ---- statuses, parameter arrays, constants ----

    def check_patterns(self, family: Family, item: Value | model.Entry) -> None:
        for pattern in item.routines:
            if not any(fnmatchcase(routine.name, pattern) for routine in family.routines):
                self.fault(item.where, f"no routine is called '{pattern}'")

    def check_statuses(self, family: Family) -> None:
        for group in family.statuses:
            concerned = [routine for routine in family.routines if group in family.status_groups(routine)]
            if not concerned:
                self.fault(f"exports/tables/{family.name}.table", f"no routine has an argument '{group.place}'")
            for value in group.values:
                self.check_patterns(family, value)
            for routine in concerned:
                general = [v for v in group.values if v.routines and v.concerns(routine.name)]
                values = [value.value for value in general]
                for value in {value for value in values if values.count(value) > 1}:
                    self.fault(routine.where, f"'{routine.name}' has two statuses {value}")
        for routine in family.routines:
            for status in routine.own_statuses:
                self.check_own_status(family, routine, status)

    def check_own_status(self, family: Family, routine: Routine, status: Value) -> None:
        groups = family.status_groups(routine)
        if not status.place and groups:
            status.place = groups[0].place
        named = [group for group in groups if group.place == status.place]
        if not named:
            self.fault(status.where, f"'{routine.name}' has no statuses in '{status.place or 'result'}'")
            return
        same = [value for group in named for value in group.values if value.value == status.value]
        names = {value.name for value in same}
        status.name = names.pop() if len(names) == 1 else ""
        if not status.text:
            texts = {value.text for value in same}
            if len(texts) != 1:
                self.fault(status.where, f"'{status.value}' names {len(texts)} statuses of the table")
            status.text = "".join(texts)

    def check_parameters(self, family: Family) -> None:
        for array in family.parameters.values():
            users = [routine for routine in family.routines if routine.argument(array.name)]
            if not users:
                self.fault(f"exports/tables/{family.name}.table", f"no routine has an argument '{array.name}'")
            for entry in array.entries:
                self.check_patterns(family, entry)
                if not array.base <= entry.first <= entry.last:
                    self.fault(entry.where, f"{array.name} has no entries {entry.first} to {entry.last}")
            for routine in users:
                taken: dict[int, str] = {}
                for entry in family.entries_of(routine, array):
                    for position in range(entry.first, entry.last + 1):
                        if position in taken:
                            reason = f"'{routine.name}' finds both {taken[position]} and {entry.name} there"
                            self.fault(entry.where, reason)
                        taken[position] = entry.name

    def check_constants(self, family: Family) -> None:
        for item in family.named():
            if not CONSTANT.match(item.name) or not family.prefix or not item.name.startswith(family.prefix):
                self.fault(item.where, f"'{item.name}' is no constant that begins with '{family.prefix}'")
            first = self.constants.setdefault(item.name, item)
            if first is not item:
                self.fault(item.where, f"'{item.name}' stands at {first.where} already")


def faults(families: list[Family], need_meanings: bool = True) -> list[str]:
    checker = Checker()
    for family in families:
        checker.check_family(family)
        if need_meanings:
            checker.check_meanings(family)
    return checker.faults
