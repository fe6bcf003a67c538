#!/usr/bin/env python3
"""Tables that differ from what was released are found, whatever it is that differs."""

import sys
import unittest
from dataclasses import replace
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent.parent
sys.path.insert(0, str(ROOT / "exports"))

from generator import model, released, tables  # noqa: E402

RECORDS = released.read(ROOT)
RECORD = next(iter(RECORDS))


def faults_after(change, name: str) -> list[str]:
    """What is found when `change` has been applied to the routine `name` and the section that it stands in."""
    families = tables.read(ROOT / "exports/tables", ROOT)
    for family in families:
        for section in family.sections:
            for routine in section.routines:
                if routine.name == name:
                    change(routine, section)
                    return released.faults(RECORDS, families)
    raise AssertionError(f"no table has '{name}'")


def with_argument(name: str, **fields):
    def change(routine, _):
        routine.arguments = [replace(a, **fields) if a.name == name else a for a in routine.arguments]

    return change


def swap_first(routine, _):
    routine.arguments[:2] = reversed(routine.arguments[:2])


def remove(routine, section):
    section.routines.remove(routine)


def setting(**fields):
    return lambda routine, _: routine.__dict__.update(fields)


class ChangedTables(unittest.TestCase):
    def assert_found(self, faults: list[str], *expected: str):
        self.assertEqual(len(faults), len(expected), faults)
        for fault, part in zip(faults, expected):
            self.assertIn(part, fault)

    def test_each_change_of_a_row_is_found(self):
        absent = "was released, and no table has it"
        cases = [
            (
                "sgerfs",
                with_argument("ferr", kind=model.ARRAY),
                "'sgerfs_Idx': argument 13 was released as 'float* ferr[]' and is 'float* ferr[] with an index'",
            ),
            (
                "saxpy",
                with_argument("x", kind=model.PLAIN),
                "'saxpy_Idx': argument 3 was released as 'const float* x[] with an index' and is 'const float* x[]'",
            ),
            ("sstebz", with_argument("vl", kind=model.SCALAR), "'sstebz_Idx': argument 4"),
            ("isamin", remove, f"'isamin' {absent}", f"'isamin_Idx' {absent}"),
            (
                "sgetrs",
                with_argument("a", direction=model.INOUT),
                "'sgetrs': argument 4 was released as 'const float* a[]' and is 'float* a[]'",
                "'sgetrs_Idx': argument 4",
            ),
            (
                "cgetrf",
                with_argument("ipiv", type=model.TYPES["float"]),
                "'cgetrf': argument 5 was released as 'int32_t* ipiv[]' and is 'float* ipiv[]'",
                "'cgetrf_Idx': argument 5",
            ),
            (
                "umfpack_di_report_status",
                with_argument("status", kind=model.SCALAR),
                "argument 2 was released as 'int32_t status' and is 'const int32_t* status'",
                "'umfpack_si_report_status_Idx': argument 2",
            ),
            ("taucs_vec_norm2", swap_first, "argument 1 was released as 'int32_t n' and is 'int32_t flags'", "argument 2"),
            ("taucs_printf", setting(is_variadic=False), "it was released with 2 arguments and has 1"),
            ("R1MACH", setting(result=None), "its result was released as 'float' and is 'void'"),
            (
                "cdotc",
                setting(result=model.TYPES["dcomplex"]),
                "'cdotc': argument 1 was released as 'quorin_complex* result' and is 'quorin_double_complex* result'",
                "'cdotc_Idx': argument 1",
            ),
            ("sdot", setting(aliases=[]), f"'SDOT' {absent}"),
            (
                "umfpack_tic",
                setting(index_name="umfpack_tic_Idx"),
                f"'umfpack_tic_32f_Idx' {absent}",
                "'umfpack_tic_Idx' is in the tables and in no record of a release",
            ),
            ("DCGMRHS", setting(has_plain=True), "'DCGMRHS' is in the tables and in no record of a release"),
        ]
        for name, change, *expected in cases:
            with self.subTest(name):
                self.assert_found(faults_after(change, name), *expected)

    def test_names_that_move_to_another_routine_with_these_arguments_are_found(self):
        families = tables.read(ROOT / "exports/tables", ROOT)
        routines = {routine.name: routine for family in families for routine in family.routines}
        isamax, isamin = routines["isamax"], routines["isamin"]
        isamax.index_name, isamin.index_name = isamin.index_name, isamax.index_name
        routines["sasum"].aliases.append(routines["snrm2"].aliases.pop())
        self.assert_found(
            released.faults(RECORDS, families),
            "'SNRM2' was released as another name of 'snrm2', and is none",
            "'isamax_Idx' was released as another name of 'isamax', and is none",
            "'isamin_Idx' was released as another name of 'isamin', and is none",
        )

    def test_what_hosts_implement_and_own_is_held_fast(self):
        families = tables.read(ROOT / "exports/tables", ROOT)
        callback = next(c for f in families for c in f.callbacks if c.is_stdcall)
        fields = next(r for f in families for r in f.records).fields
        callback.is_stdcall = False
        fields[0], fields[1] = fields[1], fields[0]
        faults = released.faults(RECORDS, families)
        self.assert_found(
            faults,
            f"'stdcall function {callback.c_name}' was released, and no table has it",
            "argument 1 was released as 'int32_t n' and is 'int32_t m'",
            "argument 2",
            f"'function {callback.c_name}' is in the tables and in no record of a release",
        )


class Records(unittest.TestCase):
    def faults(self, old: str, new: str) -> list[str]:
        text = RECORDS[RECORD]
        self.assertEqual(text.count(old), 1, old)
        return released.faults({**RECORDS, RECORD: text.replace(old, new)}, tables.read(ROOT / "exports/tables", ROOT))

    def test_marks_and_malformed_lines_are_found(self):
        line = "R1MACH: i int -> float\n"
        cases = {
            "(to come) " + line: "'R1MACH' has come: take its mark away",
            "R1MACH: open\n": "'R1MACH' is in the tables: write down the arguments",
            line + line: "'R1MACH' stands at",
            line + "R2MACH: i int -> float\n": "'R2MACH' was released, and no table has it",
            line + "R2MACH\n": "'R2MACH' is no export",
            line + "(to come) R2MACH: i innt\n": "unknown type 'innt'",
            line + "(to come) R2MACH: i both int\n": "'i both int' is no argument",
            "": "'R1MACH' is in the tables and in no record of a release",
        }
        for new, expected in cases.items():
            with self.subTest(new):
                faults = self.faults(line, new)
                self.assertEqual(len(faults), 1, faults)
                self.assertIn(expected, faults[0])

    def test_an_unused_index_is_not_an_index(self):
        text = 'title "T"\nfacade "f.hpp"\nprefix T_\nsection "S"\nf = a::f  x:{}float[2]\n  "s"\n'
        record = {Path("r.txt"): "type float = float\nf | f_Idx: x ignored float[]\n"}
        ignored, indexed = (tables.parse({Path("t.table"): text.format(kind)}, need_meanings=False) for kind in ("ignored ", ""))
        self.assertEqual(released.faults(record, ignored), [])
        self.assertIn("with an unused index' and is 'const float* x[] with an index'", released.faults(record, indexed)[0])

    def test_a_later_release_adds_to_an_earlier_one(self):
        families = tables.read(ROOT / "exports/tables", ROOT)
        text = RECORDS[RECORD]
        position = text.index("[BLAS, level 1]")
        self.assertEqual(released.faults({RECORD: text[:position], Path("next.txt"): text[position:]}, families), [])
        self.assertTrue(released.faults({}, families))


if __name__ == "__main__":
    unittest.main()
