// Nonlinear least squares with bounds: an exponential decay with a background, fitted to counts.
using System;
using System.Linq;
using Quorin.Lapacks;

static class CurveFit
{
    static int Main()
    {
        float[] counts = Enumerable.Range(0, 40).Select(t => (float)(20 * Math.Exp(-0.2 * t) + 4)).ToArray();

        void Residuals(float[] x, float[] f)
        {
            for (int t = 0; t < f.Length; ++t) f[t] = (float)(x[0] * Math.Exp(-x[1] * t)) + x[2] - counts[t];
        }

        float[] lower = { 0, 0, 0 }, upper = { 100, 5, 10 };
        using (var fit = new LeastSquaresFit(new float[] { 1, 1, 1 }, counts.Length, Residuals, bounds: (lower, upper)))
        {
            float[] x = fit.Solve();
            Console.WriteLine($"{x[0]:F4} exp(-{x[1]:F5} t) + {x[2]:F4}");
            return Math.Abs(x[0] - 20) < 0.01 && Math.Abs(x[1] - 0.2) < 1e-4 && Math.Abs(x[2] - 4) < 0.01 ? 0 : 1;
        }
    }
}
