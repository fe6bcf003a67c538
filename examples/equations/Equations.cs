// Three equations by LU factors, a sum of squares inside an array, and a report that a method of the host receives.
using System;
using System.Runtime.InteropServices;
using Quorin.Lapacks;

static class Equations
{
    static int Main()
    {
        Library.Bind();  // says at once if this process has 64 bits, or the library lacks an export

        // 2x + y + z = 7, 4x + 3y + 3z = 19, 8x + 7y + 9z = 49; the matrix by columns.
        float[] a = { 2, 4, 8, 1, 3, 7, 1, 3, 9 }, x = { 7, 19, 49 };
        int[] pivots = new int[3];
        Lapack.sgetrf(3, 3, a, 3, pivots, out int info);
        if (info != 0) throw new LapacksException("sgetrf", info);  // > 0: the matrix is singular
        Lapack.sgetrs(Trans.N, 3, 1, a, 3, pivots, x, 3, out info);

        // y^2 + z^2: the index form begins at element 1 of x.
        float squares = Blas.sdot_Idx(2, x, 1, 1, x, 1, 1);
        Console.WriteLine($"x = {x[0]}, y = {x[1]}, z = {x[2]}, y^2 + z^2 = {squares}");

        float[] control = new float[Umfpack.UMFPACK_CONTROL];
        Umfpack.umfpack_di_defaults(control);
        control[Umfpack.UMFPACK_PRL] = 4;  // all entries
        // The collector does not see that the library has the delegate: a variable holds it.
        QuorinTextOutputCallback print = text => Console.Write(Marshal.PtrToStringAnsi(text));
        Services.set_printf_callback_32f(print);
        Umfpack.umfpack_di_report_vector(3, x, control);
        Services.set_printf_callback_32f(null);
        GC.KeepAlive(print);
        return Math.Abs(x[0] - 1) + Math.Abs(x[1] - 2) + Math.Abs(x[2] - 3) + Math.Abs(squares - 13) < 1e-4 ? 0 : 1;
    }
}
