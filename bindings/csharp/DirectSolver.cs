// A x = b by the sparse direct solver, as an object.
using System;

namespace Quorin.Lapacks
{
    /// <summary>Solves with one sparse matrix, or with one after the other of the same pattern: analysed once, factorized for each.</summary>
    public sealed class DirectSolver : IDisposable
    {
        private static readonly int[] One = { 1 };
        private readonly IntPtr[] handle = new IntPtr[Pardiso.QUORIN_PARDISO_HANDLE_WORDS];
        private readonly int[] kind;
        private readonly int[] order;
        private readonly int[] starts;
        private readonly int[] columns;
        private double[] values;
        private bool isDisposed;

        /// <param name="starts">where the rows begin in columns, n + 1 numbers, from 0</param>
        /// <param name="columns">the columns of the entries, from 0, ascending in each row; of symmetric kinds the upper triangle</param>
        /// <param name="kind">a kind of real matrices: one of Pardiso's QUORIN_PARDISO_REAL_...</param>
        /// <exception cref="LapacksException">The pattern is badly formed, or there is no memory.</exception>
        public DirectSolver(int[] starts, int[] columns, int kind = Pardiso.QUORIN_PARDISO_REAL_UNSYMMETRIC)
        {
            this.kind = new[] { kind };
            this.starts = (int[])starts.Clone();
            this.columns = (int[])columns.Clone();
            order = new[] { starts.Length - 1 };
            Pardiso.sPARDISOINIT(handle, kind, Parameters);
            Parameters[Pardiso.QUORIN_PARDISO_IPARM_ZERO_BASED - 1] = 1;
        }

        /// <summary>iparm: position i of the manual is Parameters[i - 1]. Those of the analysis count at the first Factorize.</summary>
        public int[] Parameters { get; } = new int[Pardiso.QUORIN_PARDISO_PARAMETERS];

        public int Order => order[0];

        /// <summary>Factorizes the matrix with these entries.</summary>
        /// <exception cref="LapacksException">The matrix is singular, not of its kind, or there is no memory.</exception>
        public void Factorize(double[] entries)
        {
            if (entries.Length != columns.Length) throw new ArgumentException($"{columns.Length} numbers are needed", nameof(entries));
            int phase = values == null ? Pardiso.QUORIN_PARDISO_ANALYSE_FACTORIZE : Pardiso.QUORIN_PARDISO_FACTORIZE;
            values = (double[])entries.Clone();
            Run(phase, null, null);
        }

        /// <summary>x with A x = b.</summary>
        public double[] Solve(double[] b)
        {
            if (values == null) throw new InvalidOperationException("Factorize comes first");
            if (b.Length != Order) throw new ArgumentException($"{Order} numbers are needed", nameof(b));
            double[] x = new double[Order];
            Run(Pardiso.QUORIN_PARDISO_SOLVE, (double[])b.Clone(), x);
            return x;
        }

        private void Run(int phase, double[] b, double[] x)
        {
            if (isDisposed) throw new ObjectDisposedException(nameof(DirectSolver));
            Pardiso.sPARDISO_64f_Idx(handle, One, One, kind, phase, order, values, 0, starts, 0, columns, 0, null, 0, One, Parameters, 0,
                new[] { Pardiso.QUORIN_PARDISO_SILENT }, b, 0, x, 0, out int error);
            GC.KeepAlive(this); // its finalizer would free what the call uses
            if (error != Pardiso.QUORIN_PARDISO_DONE) throw new LapacksException("PARDISO", error);
        }

        public void Dispose()
        {
            if (isDisposed) return;
            isDisposed = true;
            Pardiso.sPARDISO_64f_Idx(handle, null, null, null, Pardiso.QUORIN_PARDISO_FREE_ALL, null, null, 0, null, 0, null, 0, null, 0, null,
                null, 0, null, null, 0, null, 0, out _);
            GC.SuppressFinalize(this);
        }

        ~DirectSolver() => Dispose();
    }
}
