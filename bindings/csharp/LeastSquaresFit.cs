// Nonlinear least squares as an object that pins what the library keeps.
using System;
using System.Runtime.InteropServices;

namespace Quorin.Lapacks
{
    /// <summary>Puts F(x) into f.</summary>
    public delegate void ResidualFunction(float[] x, float[] f);

    /// <summary>Minimizes ||F(x)|| from derivatives by differences. The library keeps the address of x: it stays pinned until Dispose.</summary>
    public sealed class LeastSquaresFit : IDisposable
    {
        private readonly ResidualFunction function;
        private readonly float[] point;
        private readonly float[] residual;
        private readonly float[] jacobian;
        private readonly float[] above;
        private readonly float[] below;
        private readonly float[] shifted;
        private readonly ObjectHandle run;

        /// <param name="start">x at the start; n variables</param>
        /// <param name="residuals">m, the entries of F, at least n</param>
        /// <param name="tolerance">the five tolerances; the sixth entry of eps is the library's own</param>
        /// <param name="bounds">lower and upper bounds of each variable, or null</param>
        /// <exception cref="LapacksException">An argument is out of range, or there is no memory.</exception>
        public LeastSquaresFit(float[] start, int residuals, ResidualFunction function, float tolerance = 1e-6f, int steps = 1000,
            (float[] lower, float[] upper)? bounds = null)
        {
            this.function = function ?? throw new ArgumentNullException(nameof(function));
            int n = start.Length;
            point = (float[])start.Clone();
            residual = new float[residuals];
            above = new float[residuals];
            below = new float[residuals];
            jacobian = new float[residuals * n];
            shifted = new float[n];
            float[] eps = { tolerance, tolerance, tolerance, tolerance, tolerance, 0 };
            GCHandle pinned = GCHandle.Alloc(point, GCHandleType.Pinned);
            HasBounds = bounds.HasValue;
            IntPtr address = IntPtr.Zero;
            int status = bounds.HasValue
                ? TrustRegion.strnlspbc_init(ref address, n, residuals, pinned.AddrOfPinnedObject(), bounds.Value.lower, bounds.Value.upper,
                    eps, steps, 100, 0)
                : TrustRegion.strnlsp_init(ref address, n, residuals, pinned.AddrOfPinnedObject(), eps, steps, 100, 0);
            if (status != TrustRegion.QUORIN_TRUST_REGION_SUCCESS)
            {
                pinned.Free();
                throw new LapacksException(HasBounds ? "strnlspbc_init" : "strnlsp_init", status);
            }
            run = new ObjectHandle(address, HasBounds ? DeleteBounded : (ObjectHandle.Release)Delete, pinned);
        }

        public bool HasBounds { get; }

        /// <summary>Why the run ended: one of TrustRegion's negative requests.</summary>
        public int Ending { get; private set; }

        /// <summary>Runs to the end.</summary>
        /// <returns>The best x that was found.</returns>
        public float[] Solve()
        {
            int request = 0;
            function(point, residual);
            Differentiate();
            while (request >= 0)
            {
                int status = run.Use(address => HasBounds
                    ? TrustRegion.strnlspbc_solve(ref address, residual, jacobian, ref request)
                    : TrustRegion.strnlsp_solve(ref address, residual, jacobian, ref request));
                if (status != TrustRegion.QUORIN_TRUST_REGION_SUCCESS) throw new LapacksException("strnlsp_solve", status);
                if (request == TrustRegion.QUORIN_TRUST_REGION_RESIDUAL) function(point, residual);
                if (request == TrustRegion.QUORIN_TRUST_REGION_JACOBIAN) Differentiate();
            }
            Ending = request;
            return (float[])point.Clone();
        }

        // Central differences, with the step that balances rounding and truncation in floats.
        private void Differentiate()
        {
            int m = residual.Length;
            for (int j = 0; j < point.Length; ++j)
            {
                float step = 5e-3f * Math.Max(Math.Abs(point[j]), 1e-3f);
                Array.Copy(point, shifted, point.Length);
                shifted[j] = point[j] + step;
                float right = shifted[j];
                function(shifted, above);
                shifted[j] = point[j] - step;
                float width = right - shifted[j];
                function(shifted, below);
                for (int i = 0; i < m; ++i) jacobian[j * m + i] = (above[i] - below[i]) / width;
            }
        }

        private static void Delete(ref IntPtr address) => TrustRegion.strnlsp_delete(ref address);
        private static void DeleteBounded(ref IntPtr address) => TrustRegion.strnlspbc_delete(ref address);

        public void Dispose() => run.Dispose();
    }
}
