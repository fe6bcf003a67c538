#!/usr/bin/env python3
"""Malformed tables are reported by file, line and reason; good rows become the right declarations."""

import re
import sys
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent.parent
sys.path.insert(0, str(ROOT / "exports"))

from generator import declarations, linking, tables, thunks  # noqa: E402

HEAD = 'title "T"\nfacade "f.hpp"\nprefix T_\nmissing-meanings 99\nsection "S"\n'


def parse(rows: str):
    return tables.parse({Path("t.table"): HEAD + rows})


def declared(rows: str, is_index_form: bool) -> str:
    return ", ".join(declarations.parameters(parse(rows)[0].routines[0], "c", is_index_form))


class MalformedRows(unittest.TestCase):
    def test_each_fault_is_named_with_its_line(self):
        cases = {
            'f = a::f  x:flaot\n  "s"\n': "t.table:6: argument 'x': unknown type 'flaot'",
            'f = a::f  x:float[n]\n  "s"\n': "t.table:6: argument 'x': its shape names 'n', which is no argument",
            'f = a::f  n:int n:int\n  "s"\n': "t.table:6: argument 'n' stands twice",
            'f = a::f  float n:int\n  "s"\n': "t.table:6: 'float' stands before the first argument",
            'f = a::f  n:\n  "s"\n': "t.table:6: argument 'n' has no type",
            'f = a::f  n:both int\n  "s"\n': "t.table:6: argument 'n': unknown word 'both'",
            'f = a::f  n:out value int\n  "s"\n': "t.table:6: argument 'n': a value cannot be 'out'",
            'f = a::f  x:plain float\n  "s"\n': "t.table:6: argument 'x': 'plain' and 'float' do not go together",
            'f = a::f  n:int -> number\n  "s"\n': "t.table:6: unknown result type 'number'",
            "f = a::f  n:int\n": "t.table:6: 'f' has no summary",
            'f = a::f  n:int\n  frobnicate\n  "s"\n': "t.table:7: unknown attribute 'frobnicate'",
            'f = a::f  n:int\n  "s"\nf_Idx = a::f  n:int\n  "s"\n': "t.table:8: 'f_Idx' is exported at t.table:6 already",
            "f(x) = a\n": "t.table:6: expected 'name = implementation  argument:type ... -> result'",
        }
        for rows, message in cases.items():
            with self.subTest(rows=rows), self.assertRaises(tables.TableError) as caught:
                parse(rows)
            self.assertIn(message, str(caught.exception).splitlines())

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


class Contents(unittest.TestCase):
    def test_the_manuals_first_page_names_exports_only(self):
        names = re.findall(r"`(\w+)`", (ROOT / "exports/tables/contents.md").read_text())
        exports = set((ROOT / "exports/names.txt").read_text().split())
        self.assertGreater(len(names), 20)
        self.assertEqual([name for name in names if name not in exports], [])


if __name__ == "__main__":
    unittest.main()
