"""Three equations by LU factors, a sum of squares inside an array, and a report that a function of the host receives.

equations.py [LIBRARY]
"""

import array
import ctypes
import sys

import quorin_lapacks

lapacks = quorin_lapacks.load(*sys.argv[1:])

# 2x + y + z = 7, 4x + 3y + 3z = 19, 8x + 7y + 9z = 49; the matrix by columns. NumPy's arrays do as well: dtype float32, order "F".
a, x = array.array("f", [2, 4, 8, 1, 3, 7, 1, 3, 9]), array.array("f", [7, 19, 49])
pivots, info = lapacks.array("i", 3), ctypes.c_int32()
lapacks.sgetrf(3, 3, a, 3, pivots, info)
if info.value != 0:
    sys.exit("the matrix is singular" if info.value > 0 else "an argument is wrong")
lapacks.sgetrs("N", 3, 1, a, 3, pivots, x, 3, info)

# y^2 + z^2: the index form begins at element 1 of x.
squares = lapacks.sdot_Idx(2, x, 1, 1, x, 1, 1)
print(f"x = {x[0]:g}, y = {x[1]:g}, z = {x[2]:g}, y^2 + z^2 = {squares:g}")

control = lapacks.array("f", lapacks.UMFPACK_CONTROL)
lapacks.umfpack_di_defaults(control)
control[lapacks.UMFPACK_PRL] = 4  # all entries
# The object must live as long as the library may call it.
receive = lapacks.callback("quorin_text_output_callback", lambda text: print(ctypes.string_at(text).decode("latin-1"), end=""))
lapacks.set_printf_callback_32f(receive)
lapacks.umfpack_di_report_vector(3, x, control)
lapacks.set_printf_callback_32f(lapacks.callback_types["quorin_text_output_callback"]())
sys.exit(abs(x[0] - 1) + abs(x[1] - 2) + abs(x[2] - 3) + abs(squares - 13) > 1e-4)
