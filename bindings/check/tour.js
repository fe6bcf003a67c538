// The tour of the bindings in Node.js: tour.js EXPORTS. Each step prints a line, the first wrong one ends with status 1.
"use strict";

const lapacks = require("quorin-lapacks").load();

let steps = 0;

// QUORIN_FALSIFIED is the number of a step whose wanted value is falsified, for a proof that each can fail.
function expect(step, value, wanted, tolerance = 0) {
  if (String(++steps) === process.env.QUORIN_FALSIFIED) wanted += 1 + 2 * tolerance;
  if (!(Math.abs(value - wanted) <= tolerance)) {
    console.log(`${step}: ${value} instead of ${wanted}`);
    process.exit(1);
  }
  console.log(`${step}: ${value}`);
}

function refused(step, call) {
  try {
    call();
  } catch (error) {
    expect(`${step}: ${error.message}`, Number(error instanceof TypeError), 1);
    return;
  }
  expect(`${step} was not refused`, 0, 1);
}

function dotProductInsideAnArray() {
  const data = Float32Array.of(0, 1, 2, 3, 4, 5, 6);
  expect("sdot_Idx", lapacks.sdot_Idx(3, data, 1, 1, data, 4, 1), 32);
  const product = new Float32Array(2);
  lapacks.cdotu(product, 1, Float32Array.of(1, 2), 1, Float32Array.of(3, 4), 1);
  expect("cdotu", product[0] + 100 * product[1], 995);
  refused("doubles for floats", () => lapacks.sdot(3, new Float64Array(3), 1, data, 1));
  refused("a fraction for an integer", () => lapacks.sscal(2.5, 2, data, 1));
  refused("a missing argument", () => lapacks.sscal(3, 2, data));
}

function singularValues() {
  const a = Float32Array.of(1, 3, 5, 2, 4, 6); // 3 x 2, by columns
  const s = new Float32Array(2), size = new Float32Array(1), info = new Int32Array(1);
  lapacks.sgesvd("N", "N", 3, 2, a, 3, s, null, 1, null, 1, size, -1, info);
  const work = new Float32Array(size[0]);
  lapacks.sgesvd("N", "N", 3, 2, a, 3, s, null, 1, null, 1, work, work.length, info);
  expect("sgesvd, info", info[0], 0);
  expect("sgesvd, s(1)", s[0], 9.5255181, 1e-5);
  expect("sgesvd, s(2)", s[1], 0.5143006, 1e-5);
}

function sparseLU() {
  let report = "";
  const receiver = lapacks.callback("quorin_text_output_callback", (text) => { report += lapacks.text(text); });
  lapacks.set_printf_callback_32f(receiver);
  const control = new Float32Array(lapacks.UMFPACK_CONTROL), x = new Float32Array(5);
  lapacks.umfpack_di_defaults(control);
  control[lapacks.UMFPACK_PRL] = 2;
  const starts = Int32Array.of(0, 2, 5, 9, 10, 12), rows = Int32Array.of(0, 1, 0, 2, 4, 1, 2, 3, 4, 2, 1, 4);
  const values = Float32Array.of(2, 3, 3, -1, 4, 4, -3, 1, 2, 2, 6, 1), b = Float32Array.of(8, 45, -3, 3, 19);
  const symbolic = lapacks.addresses(), numeric = lapacks.addresses();
  lapacks.umfpack_di_symbolic(5, 5, starts, rows, values, symbolic, control, null);
  lapacks.umfpack_di_numeric(starts, rows, values, symbolic[0], numeric, control, null);
  const status = lapacks.umfpack_di_solve(lapacks.UMFPACK_A, starts, rows, values, x, b, numeric[0], control, null);
  lapacks.umfpack_di_report_status(control, status);
  lapacks.umfpack_di_free_symbolic(symbolic);
  lapacks.umfpack_di_free_numeric(numeric);
  lapacks.set_printf_callback_32f(null);
  lapacks.release(receiver);
  x.forEach((value, i) => expect("umfpack_di_solve", value, i + 1, 1e-5));
  expect("report through the callback", Number(report.includes("OK")), 1);
}

function conjugateGradients() {
  const n = 10; // -1 2 -1, with 1, 1, ... for a solution
  const x = new Float64Array(n), b = new Float64Array(n), tmp = new Float64Array(4 * n);
  const ipar = new Int32Array(128), dpar = new Float64Array(128), request = new Int32Array(1);
  b[0] = b[n - 1] = 1;
  lapacks.DCG_INIT(n, x, b, request, ipar, dpar, tmp);
  ipar[lapacks.QUORIN_RCI_IPAR_RESIDUAL_TEST - 1] = 1;
  ipar[lapacks.QUORIN_RCI_IPAR_HOST_TEST - 1] = 0;
  dpar[lapacks.QUORIN_RCI_DPAR_RELATIVE_TOLERANCE - 1] = 1e-10;
  for (;;) {
    lapacks.DCG(n, x, b, request, ipar, dpar, tmp);
    if (request[0] !== lapacks.QUORIN_RCI_MULTIPLY) break;
    for (let i = 0; i < n; ++i) tmp[n + i] = 2 * tmp[i] - (i > 0 ? tmp[i - 1] : 0) - (i < n - 1 ? tmp[i + 1] : 0);
  }
  expect("DCG, request", request[0], 0);
  for (const value of x) expect("DCG", value, 1, 1e-8);
}

function directSolution() {
  const n = 10; // the same system, its upper triangle by rows, from 1
  const starts = new Int32Array(n + 1), columns = [], values = [];
  for (let i = 1; i <= n; ++i) {
    starts[i - 1] = columns.length + 1;
    columns.push(i);
    values.push(2);
    if (i < n) columns.push(i + 1), values.push(-1);
  }
  starts[n] = columns.length + 1;
  const b = new Float64Array(n), x = new Float64Array(n), iparm = new Int32Array(64), error = new Int32Array(1);
  b[0] = b[n - 1] = 1;
  const handle = lapacks.addresses(64), kind = lapacks.QUORIN_PARDISO_REAL_POSITIVE_DEFINITE;
  lapacks.sPARDISOINIT(handle, kind, iparm);
  lapacks.PARDISO(handle, 1, 1, kind, lapacks.QUORIN_PARDISO_ANALYSE_FACTORIZE_SOLVE, n, Float64Array.from(values), starts,
    Int32Array.from(columns), null, 1, iparm, lapacks.QUORIN_PARDISO_SILENT, b, x, error);
  expect("PARDISO, error", error[0], lapacks.QUORIN_PARDISO_DONE);
  for (const value of x) expect("PARDISO", value, 1, 1e-12);
  const none = (count) => Array(count).fill(null);
  lapacks.PARDISO(handle, ...none(3), lapacks.QUORIN_PARDISO_FREE_ALL, ...none(10), error);
  expect("PARDISO, freed", error[0], lapacks.QUORIN_PARDISO_DONE);
}

function leastSquaresUnderCollection() {
  const m = 8, n = 2;
  const x = Float32Array.of(1, 1), f = new Float32Array(m), jacobian = new Float32Array(m * n), step = Float32Array.of(1e-3);
  const eps = Float32Array.of(1e-6, 1e-6, 1e-6, 1e-6, 1e-6, 0), run = lapacks.addresses(), request = new Int32Array(1);
  const decay = (x, f) => f.forEach((_, t) => (f[t] = x[0] * Math.exp(-x[1] * t) - 3 * Math.exp(-0.5 * t)));
  const callable = lapacks.callback("quorin_vector_function", (rows, columns, x, f) => {
    if (global.gc) global.gc();
    decay(lapacks.view("f", x, n), lapacks.view("f", f, m));
  });
  lapacks.strnlsp_init(run, n, m, x, eps, 100, 100, 0);
  expect("x is held", lapacks.kept.filter((item) => item === x).length, 1);
  decay(x, f);
  lapacks.sjacobi(callable, n, m, jacobian, x, step);
  while (request[0] >= 0) {
    lapacks.strnlsp_solve(run, f, jacobian, request);
    if (request[0] === lapacks.QUORIN_TRUST_REGION_RESIDUAL) decay(x, f);
    if (request[0] === lapacks.QUORIN_TRUST_REGION_JACOBIAN) lapacks.sjacobi(callable, n, m, jacobian, x, step);
  }
  lapacks.strnlsp_delete(run);
  lapacks.forget(x);
  lapacks.release(callable);
  expect("strnlsp, a", x[0], 3, 1e-3);
  expect("strnlsp, b", x[1], 0.5, 1e-3);
}

expect("exports bound", lapacks.names.length, Number(process.argv[2]));
dotProductInsideAnArray();
singularValues();
sparseLU();
conjugateGradients();
directSolution();
leastSquaresUnderCollection();
console.log(`the tour is right: ${steps} steps`);
