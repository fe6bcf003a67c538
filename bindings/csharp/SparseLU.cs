// A x = b by sparse LU, as an object.
using System;

namespace Quorin.Lapacks
{
    /// <summary>The factors of a square sparse matrix in compressed columns, zero-based, rows ascending in each column.</summary>
    public sealed class SparseLU : IDisposable
    {
        private readonly int[] starts;
        private readonly int[] rows;
        private readonly float[] values;
        private readonly ObjectHandle factors;

        /// <param name="starts">where the columns begin, n + 1 numbers</param>
        /// <param name="rows">the rows of the entries</param>
        /// <param name="values">the entries</param>
        /// <exception cref="LapacksException">The matrix is singular or badly formed, or there is no memory.</exception>
        public SparseLU(int[] starts, int[] rows, float[] values)
        {
            this.starts = (int[])starts.Clone();
            this.rows = (int[])rows.Clone();
            this.values = (float[])values.Clone();
            int n = starts.Length - 1;
            IntPtr analysis = IntPtr.Zero, numeric = IntPtr.Zero;
            Check("umfpack_di_symbolic", Umfpack.umfpack_di_symbolic(n, n, starts, rows, values, ref analysis, null, null));
            int status = Umfpack.umfpack_di_numeric(starts, rows, values, analysis, ref numeric, null, null);
            Umfpack.umfpack_di_free_symbolic(ref analysis);
            factors = new ObjectHandle(numeric, Umfpack.umfpack_di_free_numeric);
            if (status != Umfpack.UMFPACK_OK) Dispose();
            Check("umfpack_di_numeric", status);
        }

        public int Order => starts.Length - 1;

        /// <summary>x with A x = b, or with another of the systems of Umfpack, such as UMFPACK_At.</summary>
        public float[] Solve(float[] b, int system = Umfpack.UMFPACK_A)
        {
            if (b.Length != Order) throw new ArgumentException($"{Order} numbers are needed", nameof(b));
            float[] x = new float[Order];
            Check("umfpack_di_solve", factors.Use(numeric => Umfpack.umfpack_di_solve(system, starts, rows, values, x, b, numeric, null, null)));
            return x;
        }

        private static void Check(string routine, int status)
        {
            if (status != Umfpack.UMFPACK_OK) throw new LapacksException(routine, status);
        }

        public void Dispose() => factors.Dispose();
    }
}
