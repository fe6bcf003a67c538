// Three equations by LU factors, a sum of squares inside an array, and a report that a function of the host receives.
"use strict";

const lapacks = require("quorin-lapacks").load();

// 2x + y + z = 7, 4x + 3y + 3z = 19, 8x + 7y + 9z = 49; the matrix by columns.
const a = Float32Array.of(2, 4, 8, 1, 3, 7, 1, 3, 9), x = Float32Array.of(7, 19, 49);
const pivots = new Int32Array(3), info = new Int32Array(1);
lapacks.sgetrf(3, 3, a, 3, pivots, info);
if (info[0] !== 0) throw new Error(info[0] > 0 ? "the matrix is singular" : "an argument is wrong");
lapacks.sgetrs("N", 3, 1, a, 3, pivots, x, 3, info);

// y^2 + z^2: the index form begins at element 1 of x.
const squares = lapacks.sdot_Idx(2, x, 1, 1, x, 1, 1);
console.log(`x = ${x[0]}, y = ${x[1]}, z = ${x[2]}, y^2 + z^2 = ${squares}`);

const control = new Float32Array(lapacks.UMFPACK_CONTROL);
lapacks.umfpack_di_defaults(control);
control[lapacks.UMFPACK_PRL] = 4; // all entries
const receive = lapacks.callback("quorin_text_output_callback", (text) => process.stdout.write(lapacks.text(text)));
lapacks.set_printf_callback_32f(receive);
lapacks.umfpack_di_report_vector(3, x, control);
lapacks.set_printf_callback_32f(null);
lapacks.release(receive);
const error = Math.abs(x[0] - 1) + Math.abs(x[1] - 2) + Math.abs(x[2] - 3) + Math.abs(squares - 13);
process.exitCode = error < 1e-4 ? 0 : 1;
