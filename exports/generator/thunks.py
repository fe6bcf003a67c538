"""The entry points themselves: C++ for one family, linked into the product."""

from __future__ import annotations

from generator import expressions, model
from generator.declarations import parameters, result_type, wrapped
from generator.model import Family, Routine

HEAD = """// Generated from {table}. Do not edit.
#include "exports/entry.hpp"
{facade}
extern "C" {{
"""

# Arguments that tell how long a work array is: work, iwork, rwork.
LENGTHS = ("lwork", "lrwork", "liwork")


def host_call(family: Family, routine: Routine) -> str:
    """The library computes with floating-point settings of its own, and host functions with the host's."""
    callbacks = {callback.c_name for callback in family.callbacks}
    calls_host = family.calls_host or any(a.type.c in callbacks for a in routine.arguments)
    return f"const quorin::platform::HostCall{'WithCallbacks' if calls_host else ''} host;"


def call_argument(argument: model.Argument) -> str:
    return f"*{argument.name}" if argument.is_dereferenced else argument.name


def indexed_argument(argument: model.Argument) -> str:
    if argument.kind in (model.ARRAY, model.PAIRED):
        return f"element({argument.name}, {argument.name}_index)"
    return argument.name


def parameter_list(routine: Routine, is_index_form: bool) -> list[str]:
    """As declared, with the index that is taken and not used left unnamed."""
    unused = {f"std::int32_t {a.name}_index" for a in routine.arguments if a.kind == model.IGNORED}
    return [p.rsplit(" ", 1)[0] if p in unused else p for p in parameters(routine, "cpp", is_index_form)]


def statement(routine: Routine, call: str) -> str:
    if routine.result_is_argument:
        return f"*result = {call};"
    return f"return {call};" if routine.result else f"{call};"


def definition(name: str, routine: Routine, is_index_form: bool, body: str) -> str:
    head = f"{result_type(routine, 'cpp')} quorin_{name}"
    items = parameter_list(routine, is_index_form)
    declaration = wrapped(head, items, f" noexcept QUORIN_EXPORT({name});")
    return f"{declaration}\n{wrapped(head, items, ' noexcept {')}\n  {body}\n}}\n"


class FortranForm:
    """The entry point of a published routine: what has to hold of its arguments beyond what it checks by itself."""

    def __init__(self, family: Family, routine: Routine) -> None:
        self.routine = routine
        self.finite = family.finite(routine)
        self.sound = family.sound(routine)
        self.minima = family.minima(routine)
        self.quantities = family.quantities
        self.lengths = [a.name for a in routine.arguments if a.name in LENGTHS]

    def published(self, replaced: dict[str, str]) -> str:
        """Fortran wants the lengths of its characters behind all other arguments, and hosts pass none."""
        replaced = {a.name: "selection.function()" for a in self.routine.arguments if a.kind == model.VALUE} | replaced
        arguments = self.routine.arguments
        characters = [a for a in arguments if a.type is model.TYPES["char"]]
        return f"{self.routine.name}_({', '.join([replaced.get(a.name, a.name) for a in arguments] + ['1'] * len(characters))});"

    def expression(self, text: str, **known: str) -> str:
        """Of 64 bits, so that no size is too large. `known` is what stands for other values than those of the call."""

        def name(word: str) -> str:
            if word in self.quantities:
                return f"{word}(*m, *n)"
            if word in known:
                return known[word]
            is_option = self.routine.argument(word).type is model.TYPES["char"]
            return f"upper(*{word})" if is_option else f"std::int64_t{{*{word}}}"

        return expressions.cpp(text, name, "std::int64_t")

    def part(self, part: model.Part) -> str:
        argument = self.routine.argument(part.array)
        position = self.routine.arguments.index(argument)
        sizes = [self.expression(size) for size in part.sizes]
        is_matrix = len(model.SIZES.split(argument.shape)) > 1
        leading = f"*{self.routine.arguments[position + 1].name}" if is_matrix else sizes[0]
        side = {"": [], "uplo": ["*uplo"], "hessenberg": ["kHessenberg"]}[part.form]
        return ", ".join([*side, part.array, *sizes, leading])

    def test(self, part: model.Part) -> str:
        what = "matrix" if not part.form else "band" if part.rows else "triangle"
        limit = f", {self.finite.limit}F" if self.finite.limit else ""
        return f"is_{what}_finite({self.part(part)}{limit})"

    def shortage(self) -> list[str]:
        """Some routines do with less than published, and find out too late that there is not even that."""
        short = {name: f"*{name} < {self.expression(self.minima[name].value, sdim='0')}" for name in self.lengths if name in self.minima}
        if not short:
            return []
        asking, lines = {}, [f"if (!asks && ({' || '.join(short.values())})) {{"]
        for name in self.lengths:
            work = self.routine.argument(name[1:])
            lines.append(f"  {work.type.cpp} best_{work.name}{{}};")
            asking |= {name: "&kAsk", work.name: f"&best_{work.name}"}
        lines.append(f"  {self.published(asking)}")
        position = {a.name: k for k, a in enumerate(self.routine.arguments, 1)}
        *others, last = short
        choice = "".join(f"{short[name]} ? {position[name]} : " for name in others) + str(position[last])
        return lines + [f"  if (*info >= 0) call.refuse({choice});", "  return;", "}"]

    def soundness(self) -> list[str]:
        """The published routine would follow numbers of the host's to places outside of its arrays."""
        lines = []
        for array, form, names in self.sound:
            position = self.routine.arguments.index(self.routine.argument(array)) + 1
            passed = ", ".join(name if self.routine.argument(name).is_array else f"*{name}" for name in names)
            asking = "!asks && " if self.lengths else ""
            lines.append(f"if ({asking}!are_{form}({array}, {passed})) return call.refuse({position});")
        return lines

    def unusable(self) -> list[str]:
        fills = [f"  fill_nan({self.part(part)});" for part in self.finite.filled]
        return fills + [f"  *info = static_cast<std::int32_t>({self.expression(self.finite.status)});"]

    def check(self) -> list[str]:
        """The published routine gets zeros instead, which tells whether its other arguments are right."""
        tests = [self.test(part) for part in self.finite.examined]
        zeros = {part.array: f"{part.array}_zeros" for part in self.finite.examined}
        lines = [f"if ({'!asks && ' if self.lengths else ''}!({' && '.join(tests)})) {{"]
        for array, name in zeros.items():
            argument = self.routine.argument(array)
            sizes = ", ".join(self.expression(size) for size in model.SIZES.split(argument.shape))
            lines.append(f"  Zeros<{argument.type.cpp}> {name}({sizes});")
        lines.append(f"  if (!({' && '.join(zeros.values())})) return call.report_no_memory();")
        selections = {a.name: f"SelectNone<{a.type.cpp}>::select" for a in self.routine.arguments if a.kind == model.VALUE}
        lines.append(f"  {self.published(selections | {array: name + '.data()' for array, name in zeros.items()})}")
        return lines + ["  if (*info < 0) return;", *self.unusable(), "  return;", "}"]

    def one_side(self) -> list[str]:
        """Without right-hand sides the published routine refuses, or writes all the same: the call gets a side of zeros."""
        count, array = self.routine.never_none
        side = self.routine.argument(array)
        replaced = {count: "&one", array: "side.data()"}
        lines = [f"if (!asks && *{count} == 0) {{", "  const std::int32_t one = 1;", f"  Zeros<{side.type.cpp}> side(*ld{array});"]
        made = ["side"]
        for name, minimum in self.minima.items():
            work = self.routine.argument(name[1:] if name in self.lengths else name)
            least = self.expression(minimum.value, **{count: "std::int64_t{1}"})
            lines.append(f"  Zeros<{work.type.cpp}> own_{work.name}({least});")
            replaced[work.name] = f"own_{work.name}.data()"
            made.append(f"own_{work.name}")
            if name in self.lengths:
                lines.append(f"  const auto own_{name} = static_cast<std::int32_t>({least});")
                replaced[name] = f"&own_{name}"
        lines.append(f"  if (!({' && '.join(made)})) return call.report_no_memory();")
        passed = ", ".join(replaced.get(a.name, a.name) for a in self.routine.arguments)
        return lines + [f"  return quorin_{self.routine.name}({passed});", "}"]

    def with_spare_room(self) -> list[str]:
        """The published routine needs, or writes, more than it is documented to: it gets that in an array of our own."""
        array, further = self.routine.spare
        work = self.routine.argument(array)
        return [
            f"const std::int64_t own_length = std::int64_t{{*l{array}}} + {self.expression(further)};",
            f"Zeros<{work.type.cpp}> own(asks ? 0 : own_length + 1);",
            "if (!own) return call.report_no_memory();",
            f"const auto own_l{array} = static_cast<std::int32_t>(asks ? kAsk : own_length);",
            self.published({array: f"asks ? {array} : own.data()", f"l{array}": f"asks ? l{array} : &own_l{array}"}),
            f"if (!asks && *info >= 0) *{work.name} = *own.data();",
        ]

    def answers(self) -> list[str]:
        lines = []
        for name in self.lengths:
            if name in self.minima:
                least = self.expression(self.minima[name].value, sdim="(std::int64_t{*n} / 2)")
                lines.append(f"  raise_answer({name[1:]}, {least});")
        return ["if (asks && *info == 0) {", *lines, "}"] if lines else []

    def body(self, begin: str) -> str:
        routine = self.routine
        lines = [begin, "using namespace quorin::dense;", f'LapackCall call("{routine.name.upper()}", info);', "if (!call.may_begin()) return;"]
        lines += [f"const HostSelection selection({a.name}, call);" for a in routine.arguments if a.kind == model.VALUE]
        if self.lengths:
            lines.append(f"const bool asks = {' || '.join(f'*{name} == kAsk' for name in self.lengths)};")
            lines += self.shortage()
            lines.append("const KeptWhenRefused kept(work, info);")
        lines += self.soundness()
        if routine.never_none:
            lines += self.one_side()
        if self.finite:
            lines += self.check()
        if routine.spare:
            lines += self.with_spare_room()
        else:
            lines.append(self.published({}))
        lines += self.answers()
        if self.finite:
            lines += ["if (call.has_failed_inside()) {", *self.unusable(), "}"]
        return "\n  ".join(lines)

    def text(self, begin: str) -> str:
        items = parameters(self.routine, "cpp", False)
        items += ["std::size_t"] * sum(a.type is model.TYPES["char"] for a in self.routine.arguments)
        declaration = wrapped(f"void {self.routine.name}_", items, ";")
        return f"{declaration}\n{definition(self.routine.name, self.routine, False, self.body(begin))}"


def plain_form(family: Family, routine: Routine) -> str:
    if not routine.implementation:
        return ""  # written by hand
    begin = host_call(family, routine)
    if routine.is_fortran:
        return FortranForm(family, routine).text(begin)
    arguments = ", ".join(call_argument(argument) for argument in routine.arguments)
    call = f"quorin::{routine.implementation}({arguments})"
    lines = [statement(routine, call)] if family.keeps_host_settings(routine) else [begin, statement(routine, call)]
    return definition(routine.name, routine, False, "\n  ".join(lines))


def index_form(routine: Routine) -> str:
    passed = [indexed_argument(argument) for argument in routine.arguments]
    if routine.result_is_argument:
        passed.insert(0, "result")
    call = f"quorin_{routine.name}({', '.join(passed)})"
    return_word = "return " if result_type(routine, "cpp") != "void" else ""
    return definition(routine.index_name, routine, True, f"{return_word}{call};")


def alias(routine: Routine, name: str) -> str:
    return f"extern decltype(quorin_{routine.name}) quorin_{name} QUORIN_EXPORT_ALIAS({name}, {routine.name});\n"


def source(family: Family, table: str) -> str:
    facade = f'#include "{family.facade}"\n' if family.facade else ""
    parts = [HEAD.format(table=table, facade=facade)]
    for routine in family.routines:
        parts.append(plain_form(family, routine))
        parts.extend(alias(routine, name) for name in routine.aliases)
        if routine.index_name:
            parts.append(index_form(routine))
    parts.append('}  // extern "C"\n')
    return "\n".join(part for part in parts if part)


def fortran_name(routine: Routine) -> str:
    """A routine of ours under its Fortran name. Lengths that callers append to the arguments are not looked at."""
    call = f"quorin::{routine.implementation}({', '.join(call_argument(a) for a in routine.arguments)})"
    items, result, body = parameters(routine, "cpp", False), result_type(routine, "cpp"), statement(routine, call)
    if routine.result_is_argument:
        items, result = items[1:], "quorin::dense::ComplexResult"
        body = f"return quorin::dense::complex_result({call});"
    head = f"{result} {routine.name}_"
    return f"{wrapped(head, items, ' noexcept;')}\n{wrapped(head, items, ' noexcept {')}\n  {body}\n}}\n"


def fortran_names(families: list[Family], facade: str) -> str:
    """What the Fortran routines of LAPACK call: the library's own routines behind `facade`."""
    routines = [r for f in families if f.facade == facade for r in f.routines]
    ours = [fortran_name(r) for r in routines if r.has_plain and r.implementation and not r.is_fortran]
    head = f'// Generated from the export tables. Do not edit.\n#include "{facade}"\n#include "dense/lapack/fortran.hpp"\n'
    return "\n".join([head + '\nextern "C" {\n', *ours, '}  // extern "C"\n'])
