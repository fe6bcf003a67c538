"""The tour of the bindings in Python: tour.py LIBRARY, with the package on the path. Each step prints a line, the first wrong one ends with status 1."""

import array
import ctypes
import gc
import math
import os
import sys

import quorin_lapacks

lapacks = quorin_lapacks.load(sys.argv[1])


# QUORIN_FALSIFIED is the number of a step whose wanted value is falsified, for a proof that each can fail.
falsified = int(os.environ.get("QUORIN_FALSIFIED", 0))
steps = 0


def expect(step, value, wanted, tolerance=0.0):
    global steps
    steps += 1
    if steps == falsified:
        wanted += 1 + 2 * tolerance
    if not abs(value - wanted) <= tolerance:
        sys.exit(f"{step}: {value} instead of {wanted}")
    print(f"{step}: {value}")


def refused(step, call):
    try:
        call()
    except TypeError as error:
        print(f"{step}: {error}")
    else:
        sys.exit(f"{step}: was not refused")


def dot_product_inside_an_array():
    data = array.array("f", range(7))
    expect("sdot_Idx", lapacks.sdot_Idx(3, data, 1, 1, data, 4, 1), 32)
    refused("doubles for floats", lambda: lapacks.sdot(3, array.array("d", range(3)), 1, data, 1))
    refused("read-only memory", lambda: lapacks.sscal(3, 2.0, memoryview(data).toreadonly(), 1))
    refused("a missing argument", lambda: lapacks.sscal(3, 2.0, data))


def singular_values():
    a = array.array("f", [1, 3, 5, 2, 4, 6])  # 3 x 2, by columns
    s, size, info = lapacks.array("f", 2), lapacks.array("f", 1), ctypes.c_int32()
    lapacks.sgesvd("N", "N", 3, 2, a, 3, s, None, 1, None, 1, size, -1, info)
    work = lapacks.array("f", int(size[0]))
    lapacks.sgesvd("N", "N", 3, 2, a, 3, s, None, 1, None, 1, work, len(work), info)
    expect("sgesvd, info", info.value, 0)
    expect("sgesvd, s(1)", s[0], 9.5255181, 1e-5)
    expect("sgesvd, s(2)", s[1], 0.5143006, 1e-5)


def sparse_lu():
    reported = []
    report = lapacks.callback("quorin_text_output_callback", lambda text: reported.append(ctypes.string_at(text)))
    lapacks.set_printf_callback_32f(report)
    control, x = lapacks.array("f", 20), lapacks.array("f", 5)
    lapacks.umfpack_di_defaults(control)
    control[lapacks.UMFPACK_PRL] = 2
    starts, rows = array.array("i", [0, 2, 5, 9, 10, 12]), array.array("i", [0, 1, 0, 2, 4, 1, 2, 3, 4, 2, 1, 4])
    values, b = array.array("f", [2, 3, 3, -1, 4, 4, -3, 1, 2, 2, 6, 1]), array.array("f", [8, 45, -3, 3, 19])
    symbolic, numeric = ctypes.c_void_p(), ctypes.c_void_p()
    lapacks.umfpack_di_symbolic(5, 5, starts, rows, values, symbolic, control, None)
    lapacks.umfpack_di_numeric(starts, rows, values, symbolic, numeric, control, None)
    status = lapacks.umfpack_di_solve(lapacks.UMFPACK_A, starts, rows, values, x, b, numeric, control, None)
    lapacks.umfpack_di_report_status(control, status)
    lapacks.umfpack_di_free_symbolic(symbolic)
    lapacks.umfpack_di_free_numeric(numeric)
    lapacks.set_printf_callback_32f(lapacks.callback_types["quorin_text_output_callback"]())
    for i in range(5):
        expect("umfpack_di_solve", x[i], i + 1, 1e-5)
    expect("report through the callback", int(b"OK" in b"".join(reported)), 1)


def conjugate_gradients():
    n = 10  # -1 2 -1, with 1, 1, ... for a solution
    x, b, tmp = lapacks.array("d", n), lapacks.array("d", [1.0] + [0.0] * (n - 2) + [1.0]), lapacks.array("d", 4 * n)
    ipar, dpar, request, iterations = lapacks.array("i", 128), lapacks.array("d", 128), ctypes.c_int32(), ctypes.c_int32()
    lapacks.DCG_INIT(n, x, b, request, ipar, dpar, tmp)
    ipar[lapacks.QUORIN_RCI_IPAR_RESIDUAL_TEST - 1] = 1
    ipar[lapacks.QUORIN_RCI_IPAR_HOST_TEST - 1] = 0
    dpar[lapacks.QUORIN_RCI_DPAR_RELATIVE_TOLERANCE - 1] = 1e-10
    while True:
        lapacks.DCG(n, x, b, request, ipar, dpar, tmp)
        if request.value != lapacks.QUORIN_RCI_MULTIPLY:
            break
        p = [0.0, *tmp[:n], 0.0]
        tmp[n : 2 * n] = [2 * p[i] - p[i - 1] - p[i + 1] for i in range(1, n + 1)]
    lapacks.DCG_GET(n, x, b, None, ipar, dpar, tmp, iterations)
    expect("DCG, request", request.value, 0)
    for value in x:
        expect("DCG", value, 1, 1e-8)


def direct_solution():
    n = 10  # the same system, its upper triangle by rows, from 1
    starts = array.array("i", [2 * i + 1 for i in range(n)] + [2 * n])
    columns = array.array("i", [j for i in range(1, n + 1) for j in (i, i + 1)][:-1])
    values, b = array.array("d", ([2, -1] * n)[:-1]), array.array("d", [1] + [0] * (n - 2) + [1])
    x, iparm, error = lapacks.array("d", n), lapacks.array("i", 64), ctypes.c_int32()
    handle, kind = (ctypes.c_void_p * 64)(), lapacks.QUORIN_PARDISO_REAL_POSITIVE_DEFINITE
    lapacks.sPARDISOINIT(handle, kind, iparm)
    phase, silent = lapacks.QUORIN_PARDISO_ANALYSE_FACTORIZE_SOLVE, lapacks.QUORIN_PARDISO_SILENT
    lapacks.sPARDISO_64f_Idx(handle, 1, 1, kind, phase, n, values, 0, starts, 0, columns, 0, None, 0, 1, iparm, 0, silent, b, 0, x, 0, error)
    expect("PARDISO, error", error.value, lapacks.QUORIN_PARDISO_DONE)
    for value in x:
        expect("PARDISO", value, 1, 1e-12)
    lapacks.PARDISO(handle, *[None] * 3, lapacks.QUORIN_PARDISO_FREE_ALL, *[None] * 10, error)
    expect("PARDISO, freed", error.value, lapacks.QUORIN_PARDISO_DONE)


def least_squares_under_collection():
    m, n = 8, 2

    @lambda function: lapacks.callback("quorin_vector_function", function)
    def decay(rows, columns, x, f):
        gc.collect()
        for t in range(rows[0]):
            f[t] = x[0] * math.exp(-x[1] * t) - 3 * math.exp(-0.5 * t)

    def residual():
        decay(ctypes.c_int32(m), ctypes.c_int32(n), x, f)

    x, f, jacobian = array.array("f", [1, 1]), lapacks.array("f", m), lapacks.array("f", m * n)
    x = (ctypes.c_float * n).from_buffer(x)
    run, request, step = ctypes.c_void_p(), ctypes.c_int32(), array.array("f", [1e-3])
    eps = array.array("f", [1e-6] * 5 + [0])
    lapacks.strnlsp_init(run, n, m, x, eps, 100, 100, 0.0)
    expect("x is held", sum(item is x for item in lapacks.kept), 1)
    residual()
    lapacks.sjacobi(decay, n, m, jacobian, x, step)
    while request.value >= 0:
        lapacks.strnlsp_solve(run, f, jacobian, request)
        if request.value == lapacks.QUORIN_TRUST_REGION_RESIDUAL:
            residual()
        if request.value == lapacks.QUORIN_TRUST_REGION_JACOBIAN:
            lapacks.sjacobi(decay, n, m, jacobian, x, step)
    lapacks.strnlsp_delete(run)
    lapacks.forget(x)
    expect("strnlsp, a", x[0], 3, 1e-3)
    expect("strnlsp, b", x[1], 0.5, 1e-3)


dot_product_inside_an_array()
singular_values()
sparse_lu()
conjugate_gradients()
direct_solution()
least_squares_under_collection()
print(f"the tour is right: {steps} steps")
