#!/usr/bin/env python3
"""Malformed tables are reported by file, line and reason; good rows become the right declarations."""

import re
import sys
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent.parent
sys.path.insert(0, str(ROOT / "exports"))

from generator import constants, declarations, headers, linking, manual, tables, thunks  # noqa: E402
from generator.bindings import visual_basic  # noqa: E402

HEAD = 'title "T"\nfacade "f.hpp"\nprefix T_\nsection "S"\n'


def parse(rows: str, need_meanings: bool = False):
    return tables.parse({Path("t.table"): HEAD + rows}, need_meanings)


def declared(rows: str, is_index_form: bool) -> str:
    return ", ".join(declarations.parameters(parse(rows)[0].routines[0], "c", is_index_form))


class MalformedRows(unittest.TestCase):
    def test_each_fault_is_named_with_its_line(self):
        cases = {
            'f = a::f  x:flaot\n  "s"\n': "t.table:5: argument 'x': unknown type 'flaot'",
            'f = a::f  x:float[n]\n  "s"\n': "t.table:5: argument 'x': its shape names 'n', which is no argument",
            'f = a::f  n:int n:int\n  "s"\n': "t.table:5: argument 'n' stands twice",
            'f = a::f  float n:int\n  "s"\n': "t.table:5: 'float' stands before the first argument",
            'f = a::f  n:\n  "s"\n': "t.table:5: argument 'n' has no type",
            'f = a::f  n:both int\n  "s"\n': "t.table:5: argument 'n': unknown word 'both'",
            'f = a::f  n:out value int\n  "s"\n': "t.table:5: argument 'n': a value cannot be 'out'",
            'f = a::f  x:plain float\n  "s"\n': "t.table:5: argument 'x': 'plain' and 'float' do not go together",
            'f = a::f  n:int -> number\n  "s"\n': "t.table:5: unknown result type 'number'",
            "f = a::f  n:int\n": "t.table:5: 'f' has no summary",
            'f = a::f  n:int\n  frobnicate\n  "s"\n': "t.table:6: unknown attribute 'frobnicate'",
            'f = a::f  n:int\n  "s"\nf_Idx = a::f  n:int\n  "s"\n': "t.table:7: 'f_Idx' is exported at t.table:5 already",
            "f(x) = a\n": "t.table:5: expected 'name = implementation  argument:type ... -> result'",
        }
        for rows, message in cases.items():
            with self.subTest(rows=rows), self.assertRaises(tables.TableError) as caught:
                parse(rows)
            self.assertIn(message, str(caught.exception).splitlines())

    def test_each_fault_of_a_description_is_named(self):
        row = 'f = a::f  c:char n:int x:float[n] -> int\n  "s"\n'
        cases = {
            'argument z "m"\n' + row: "t.table:5: no routine has an argument 'z'",
            'argument n "m"\nargument n "m"\n' + row: "t.table:6: the argument 'n' is explained twice",
            'argument c "m"\n  option UP "t"\n' + row: "t.table:6: 'UP' is not one character",
            'argument n "m"\n  option U "t"\n' + row: "t.table:6: 'U' is no integer",
            'argument c "m"\n  option U "t"\n  option U "t"\n' + row: "t.table:7: the option 'U' stands twice",
            'argument x "m"\n  option 1 "t"\n' + row: "t.table:5: 'x' of 'f' is neither a character nor an integer",
            row + '  arg z "m"\n': "t.table:7: 'f' has no argument 'z'",
            row + '  arg n "m"\n  arg n "m"\n': "t.table:8: the argument 'n' is explained twice",
            row + '  option U "m"\n': "t.table:7: an option stands below no 'arg'",
            row + '  minimum lwork "n"\n': "t.table:7: 'f' has no argument 'lwork'",
            row + '  minimum n "2*k"\n': "t.table:7: '2*k' names 'k', which is no argument",
            row + '  minimum n "2*"\n': "t.table:7: '2*' is no expression",
            row + '  minimum n "n/2"\n': "t.table:7: 'n/2': no minimum is made of 'Div'",
            row + '  arg c "m"\n    option U "t"\n  minimum n "2 if c in \'UL\' else 1"\n': (
                "t.table:9: '2 if c in 'UL' else 1': 'UL' is no option of 'c'"
            ),
            row + "  like g\n": "t.table:5: 'f' is like 'g', which is no other routine that speaks for itself",
            row + '  status 1 "c"\n': "t.table:7: 'f' has no statuses in 'result'",
            'status 1 "c"\n' + row: "t.table:5: a status stands before the first 'statuses'",
            'statuses info "t"\n' + row: "exports/tables/t.table: no routine has an argument 'info'",
            'statuses result "t"\nstatus i T_I "c"\n' + row: "t.table:6: 'i' is no integer, and cannot be the constant 'T_I'",
            'statuses result "t"\nstatus 1 X_I "c"\n' + row: "t.table:6: 'X_I' is no constant that begins with 'T_'",
            'statuses result "t"\nstatus 1 "c" for g*\n' + row: "t.table:6: no routine is called 'g*'",
            'statuses result "t"\nstatus 1 "c" for f\nstatus 1 "d" for f\n' + row: "t.table:8: 'f' has two statuses 1",
            'statuses result "t"\n' + row + "  status 1\n": "t.table:8: '1' names 0 statuses of the table",
            'constant T_A 1 "t"\nconstant T_A 2 "t"\n' + row: "t.table:6: 'T_A' stands at t.table:5 already",
            'constant T_A one "t"\n' + row: "t.table:5: 'one' is no integer",
            'parameters x base 2 "t"\n' + row: "t.table:5: expected 'parameters ARRAY base 0|1 \"text\"'",
            'entry x 1 T_A "t"\n' + row: "t.table:5: no 'parameters x' stands above",
            'parameters x base 1 "t"\nentry x 0 T_A "t"\n' + row: "t.table:6: x has no entries 0 to 0",
            'parameters x base 1 "t"\nentry x 1-3 T_A "t"\nentry x 3 T_B "t"\n' + row: "t.table:7: 'f' finds both T_A and T_B there",
            "record r = c_r a::R\n" + row: "t.table:5: expected a text in double quotes, found nothing",
            'record r = c_r a::R "t"\n  field k:flaot "t"\n' + row: "t.table:6: field 'k': unknown type 'flaot'",
            "callback c = c_c\n" + row: "t.table:5: expected 'callback NAME = C_NAME CPP_NAME  argument:type ... -> result'",
        }
        for rows, message in cases.items():
            with self.subTest(rows=rows), self.assertRaises(tables.TableError) as caught:
                parse(rows)
            self.assertIn(message, str(caught.exception).splitlines())

    def test_every_argument_needs_a_meaning(self):
        with self.assertRaises(tables.TableError) as caught:
            parse('argument m "m"\nf = a::f  n:int m:int\n  "s"\n', need_meanings=True)
        self.assertEqual(str(caught.exception), "exports/tables/t.table: 1 arguments have no meaning: n of f")

    def test_all_faults_are_reported_at_once(self):
        with self.assertRaises(tables.TableError) as caught:
            parse('f = a::f  x:flaot\n  "s"\ng = a::g  y:flaot\n  "s"\n')
        self.assertEqual(len(str(caught.exception).splitlines()), 2)


class Declarations(unittest.TestCase):
    ROW = 'f = a::f  n:int x:float[n] y:inout plain complex[n] v:paired float w:ignored double[n] k:value int -> complex\n  "s"\n'

    def test_plain_and_index_form(self):
        plain = "quorin_complex* result, const int32_t* n, const float* x, quorin_complex* y, const float* v, const double* w, int32_t k"
        self.assertEqual(declared(self.ROW, False), plain)
        indexed = plain.replace("x,", "x, int32_t x_index,").replace("v,", "v, int32_t v_index,").replace("w,", "w, int32_t w_index,")
        self.assertEqual(declared(self.ROW, True), indexed)

    def test_index_form_passes_addresses_on(self):
        source = thunks.source(parse(self.ROW)[0], "t.table")
        self.assertIn("quorin_f(result, n, element(x, x_index), y, element(v, v_index), w, k)", source)
        self.assertIn("*result = quorin::a::f(*n, x, y, *v, w, k);", source)

    def test_alias_and_names(self):
        families = parse('f = a::f  n:int\n  "s"\n  alias F\ng = a::g  n:int\n  "s"\n  index none\nh = a::h n:int\n  "s"\n  index sH_Idx\n')
        self.assertEqual(linking.export_names(families), ["F", "f", "f_Idx", "g", "h", "sH_Idx"])
        self.assertEqual(linking.internal_names(families)["F"], "quorin_f")


class Descriptions(unittest.TestCase):
    TABLE = (
        'argument c "which triangle"\n  option U "upper"\n  option L "lower"\n'
        'argument x "a vector"\nargument ipar "settings"\n'
        'statuses info Status "How a call ended"\n'
        'status 0 "done by h" for h\nstatus 0 T_DONE "done"\nstatus >0 "failed"\nstatus 7 T_SEVEN "seven" for g\n'
        'statuses result Answer "Answers"\nstatus 1 T_ANSWER_YES "yes"\nstatus 2 T_ANSWER_NO "no"\n'
        'parameters eps base 0 "Tolerances."\nentry eps 0 T_EPS_SMALL "small" default 1\nentry eps 1 T_EPS_TINY "tiny" default 1e-3\n'
        'parameters ipar base 1 "Settings."\n'
        'entry ipar 1-2 T_TOP_SIZE "sizes" default 5\nentry ipar 3 T_LIMIT "limit" default 2e1\nentry ipar 4 T_OTHER "other" for g\n'
        'callback visit = t_visit a::Visit  n:int -> int\n  "A visitor."\n  stdcall\n'
        'record r = t_r a::R "A record."\n  field n:int "size"\n  field v.d:double[n] "values"\n  field v.p:pointer "or so"\n'
        'section "S"\n'
        'f = a::f  c:char n:int x:kept nullable float[n] ipar:int[4] info:out int\n  "Does f."\n'
        '  arg n "size"\n  minimum x "2*n if c == \'U\' else n"\n  status i "failed at i"\n  status >0 "failed for f"\n'
        "g = a::f  c:char n:int x:kept nullable float[n] ipar:int[4] info:out int\n  like f\n  status i \"failed at row i\"\n"
        'h = a::h  c:char x:value r w:value visit info:out int\n  "Does h."\n  status 7\n'
        'k = a::k  info:int eps:float[2] -> double\n  "Does k."\nl = a::l  n:int -> int\n  "Does l."\n'
    )

    def setUp(self):
        self.family = parse(self.TABLE)[0]
        self.f, self.g, self.h, self.k, self.l = self.family.routines

    def statuses(self, routine):
        return {v.value: v.text for v in self.family.statuses_of(routine, self.family.statuses[0])}

    def test_a_row_overrides_the_family_and_likens_itself_to_another(self):
        self.assertEqual(self.family.note(self.g, "n").text, "size")
        self.assertEqual(self.family.note(self.g, "c").text, "which triangle")
        self.assertEqual(self.g.summary, "Does f.")
        self.assertEqual(self.statuses(self.f), {"0": "done", ">0": "failed for f", "i": "failed at i"})
        self.assertEqual(self.statuses(self.g), {"0": "done", ">0": "failed for f", "i": "failed at row i", "7": "seven"})
        self.assertEqual(self.statuses(self.h), {"0": "done by h", ">0": "failed", "7": "seven"})

    def test_only_what_is_written_or_returned_as_int_answers(self):
        groups = {routine.name: [g.place for g in self.family.status_groups(routine)] for routine in self.family.routines}
        self.assertEqual(groups, {"f": ["info"], "g": ["info"], "h": ["info"], "k": [], "l": ["result"]})

    def test_the_manual_shows_what_a_routine_needs_and_answers(self):
        page = manual.pages(self.family, "t.table")["t.md"]
        self.assertIn("| `c` | in | char | 1 | by reference | which triangle<br>`U`: upper<br>`L`: lower |", page)
        self.assertIn("| `x` | in | float | n | array | a vector; may be null<br>at least `2*n if c == 'U' else n` elements<br>**Kept**", page)
        self.assertIn("| `info` | meaning |\n|---|---|\n| `>0` | failed for f |\n| `i` | failed at i |\n\nAlso `info` `0`: see", page)
        self.assertIn("| `0` | `T_DONE` | done by h |\n", page)
        self.assertIn("| 1 to 2 | `T_TOP_SIZE` | sizes | 5 | |", page)

    def test_constants_in_c_and_cpp(self):
        header = headers.header(self.family, "t.table")
        self.assertIn("enum quorin_t_status {\n  T_DONE = 0, /* done */\n  T_SEVEN = 7 /* seven */\n};", header)
        self.assertIn("  T_TOP_SIZE = 1, /* sizes */\n  T_LIMIT = 3, /* limit */\n  T_OTHER = 4 /* other */", header)
        cpp = constants.cpp_header(self.family, "t.table")
        self.assertIn("namespace quorin::f {", cpp)
        self.assertIn("enum class Status : std::int32_t {\n  kDone = 0,\n  kSeven = 7,\n};", cpp)
        self.assertIn("enum class Answer : std::int32_t {\n  kYes = 1,\n  kNo = 2,\n};", cpp)
        self.assertIn("std::array<float, 2> kEpsDefaults = {\n    1.0F,\n    1e-3F,\n};", cpp)
        self.assertIn("inline constexpr int kTopSize = 1;", cpp)
        self.assertIn("inline constexpr std::int32_t kLimitDefault = 2e1;", cpp)

    def test_records_and_host_functions(self):
        header = headers.header(self.family, "t.table")
        self.assertIn("typedef int32_t(QUORIN_CALLBACK* t_visit)(const int32_t* n);", header)
        self.assertIn("  union {\n    double* d; /* values */\n    void* p; /* or so */\n  } v;\n} t_r;", header)
        self.assertIn("h(const char* c, t_r* x, t_visit w, int32_t* info);", header)

    def test_twins_share_an_entry(self):
        self.assertEqual([[r.name for r in group] for group in self.family.twins(self.family.sections[1])], [["f"], ["g"], ["h"], ["k"], ["l"]])
        self.g.own_statuses, self.family.statuses[0].values = [], self.family.statuses[0].values[:3]
        self.assertEqual([[r.name for r in group] for group in self.family.twins(self.family.sections[1])], [["f", "g"], ["h"], ["k"], ["l"]])


class TheTables(unittest.TestCase):
    def test_every_minimum_is_a_number(self):
        count = 0
        for family in tables.read(ROOT / "exports/tables", ROOT):
            for routine in family.routines:
                notes = {a.name: family.note(routine, a.name) for a in routine.arguments}
                values = {name: 7 for name in [*family.quantities, *notes]}
                values.update({name: note.options[0].value for name, note in notes.items() if note.options})
                values.update({a.name: dict.fromkeys(range(200), 7) for a in routine.arguments if a.is_array})
                for name in notes:
                    if values[name] in ("0", "1", "2", "11"):
                        values[name] = int(values[name])
                for name, minimum in family.minima(routine).items():
                    with self.subTest(routine=routine.name, argument=name):
                        self.assertGreaterEqual(eval(minimum.value, {"max": max, "min": min}, values), 0)
                    count += 1
        self.assertGreater(count, 100)


class Contents(unittest.TestCase):
    def test_the_manuals_first_page_names_exports_only(self):
        names = re.findall(r"`(\w+)`", (ROOT / "exports/tables/contents.md").read_text())
        exports = set((ROOT / "exports/names.txt").read_text().split())
        self.assertGreater(len(names), 20)
        self.assertEqual([name for name in names if name not in exports], [])


class VisualBasic(unittest.TestCase):
    """No compiler for it is at hand: what can be told of a program without one."""

    def arguments(self, text: str) -> int:
        while "(" in text:
            text = re.sub(r"\([^()]*\)", "", text)
        return text.count(",") + bool(text.strip())

    def test_the_example_calls_what_the_module_declares(self):
        module = visual_basic.module(tables.read(ROOT / "exports/tables", ROOT)).replace(" _\n", " ")
        declarations_of = re.findall(r"^Public Declare (?:Sub|Function) (\w+) .*?\((.*)\)(?: As \w+)?$", module, re.MULTILINE)
        declared_arguments = {name: self.arguments(items) for name, items in declarations_of}
        constants_of = set(re.findall(r"^Public Const (\w+)", module, re.MULTILINE))
        program = re.sub(r"'.*", "", (ROOT / "examples/equations/Equations.bas").read_text())
        calls = re.findall(r"(?:^ *|= )(s\w+|umfpack\w+)(?: (.*)|\((.*)\))$", program, re.MULTILINE)
        self.assertGreater(len(calls), 5)
        for name, statement, function in calls:
            with self.subTest(name=name):
                self.assertEqual(self.arguments(statement or function), declared_arguments.get(name))
        self.assertIn("UMFPACK_CONTROL", set(re.findall(r"\bUMFPACK\w+", program)) & constants_of)
        self.assertEqual(set(re.findall(r"\bUMFPACK\w+", program)) - constants_of, set())


if __name__ == "__main__":
    unittest.main()
