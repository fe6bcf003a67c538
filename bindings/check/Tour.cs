// The tour of the bindings in C#: each step prints a line, the first wrong one ends with status 1.
using System;
using System.Reflection;
using Quorin.Lapacks;

static class Tour
{
    // For a proof that each step can fail: the number of one whose wanted value is falsified.
    static readonly string Falsified = Environment.GetEnvironmentVariable("QUORIN_FALSIFIED");
    static int steps;

    static void Expect(string step, double value, double wanted, double tolerance)
    {
        if ($"{++steps}" == Falsified) wanted += 1 + 2 * tolerance;
        if (!(Math.Abs(value - wanted) <= tolerance))
        {
            Console.WriteLine($"{step}: {value} instead of {wanted}");
            Environment.Exit(1);
        }
        Console.WriteLine($"{step}: {value}");
    }

    static void DotProductInsideAnArray()
    {
        float[] data = { 0, 1, 2, 3, 4, 5, 6 };
        Expect("sdot_Idx", Blas.sdot_Idx(3, data, 1, 1, data, 4, 1), 32, 0);
    }

    static void SingularValues()
    {
        float[] a = { 1, 3, 5, 2, 4, 6 };  // 3 x 2, by columns
        float[] s = new float[2], size = new float[1];
        Lapack.sgesvd(Jobu.N, Jobvt.N, 3, 2, a, 3, s, null, 1, null, 1, size, -1, out int info);
        float[] work = new float[(int)size[0]];
        Lapack.sgesvd(Jobu.N, Jobvt.N, 3, 2, a, 3, s, null, 1, null, 1, work, work.Length, out info);
        Expect("sgesvd, info", info, 0, 0);
        Expect("sgesvd, s(1)", s[0], 9.5255181, 1e-5);
        Expect("sgesvd, s(2)", s[1], 0.5143006, 1e-5);
    }

    static void Factors()
    {
        int[] starts = { 0, 2, 5, 9, 10, 12 }, rows = { 0, 1, 0, 2, 4, 1, 2, 3, 4, 2, 1, 4 };
        float[] values = { 2, 3, 3, -1, 4, 4, -3, 1, 2, 2, 6, 1 };
        using (var factors = new SparseLU(starts, rows, values))
        {
            float[] x = factors.Solve(new float[] { 8, 45, -3, 3, 19 });
            for (int i = 0; i < 5; ++i) Expect("SparseLU", x[i], i + 1, 1e-5);
        }
        try
        {
            new SparseLU(new[] { 0, 1, 2 }, new[] { 0, 0 }, new float[] { 1, 1 });
            Expect("a singular matrix is refused", 0, 1, 0);
        }
        catch (LapacksException e)
        {
            Expect("a singular matrix is refused", e.Status, Umfpack.UMFPACK_WARNING_singular_matrix, 0);
        }
    }

    static void ReportThroughTheCallback()
    {
        int reported = 0;
        QuorinTextOutputCallback report = text => ++reported;
        Services.set_printf_callback_32f(report);
        float[] control = new float[20];
        Umfpack.umfpack_di_defaults(control);
        control[Umfpack.UMFPACK_PRL] = 2;
        Umfpack.umfpack_di_report_status(control, Umfpack.UMFPACK_OK);
        Services.set_printf_callback_32f(null);
        GC.KeepAlive(report);
        Expect("report through the callback", reported > 0 ? 1 : 0, 1, 0);
    }

    static void ConjugateGradients()
    {
        // -1 2 -1, with 1, 1, ... for a solution.
        const int n = 10;
        double[] x = new double[n], b = new double[n], tmp = new double[4 * n], dpar = new double[128];
        int[] ipar = new int[128];
        b[0] = b[n - 1] = 1;
        Rci.DCG_INIT(n, x, b, out int request, ipar, dpar, tmp);
        ipar[Rci.QUORIN_RCI_IPAR_RESIDUAL_TEST - 1] = 1;
        ipar[Rci.QUORIN_RCI_IPAR_HOST_TEST - 1] = 0;
        dpar[Rci.QUORIN_RCI_DPAR_RELATIVE_TOLERANCE - 1] = 1e-10;
        for (;;)
        {
            Rci.DCG(n, x, b, out request, ipar, dpar, tmp);
            if (request != Rci.QUORIN_RCI_MULTIPLY) break;
            for (int i = 0; i < n; ++i) tmp[n + i] = 2 * tmp[i] - (i > 0 ? tmp[i - 1] : 0) - (i < n - 1 ? tmp[i + 1] : 0);
        }
        Expect("DCG, request", request, Rci.QUORIN_RCI_FINISHED, 0);
        foreach (double value in x) Expect("DCG", value, 1, 1e-8);
    }

    static void DirectSolution()
    {
        // The same system, its upper triangle by rows.
        const int n = 10;
        int[] starts = new int[n + 1], columns = new int[2 * n - 1];
        double[] values = new double[2 * n - 1], b = new double[n];
        for (int i = 0; i < n; ++i)
        {
            starts[i + 1] = Math.Min(2 * (i + 1), 2 * n - 1);
            columns[2 * i] = i;
            values[2 * i] = 2;
            if (i + 1 == n) break;
            columns[2 * i + 1] = i + 1;
            values[2 * i + 1] = -1;
        }
        b[0] = b[n - 1] = 1;
        using (var solver = new DirectSolver(starts, columns, Pardiso.QUORIN_PARDISO_REAL_POSITIVE_DEFINITE))
        {
            solver.Factorize(values);
            foreach (double value in solver.Solve(b)) Expect("DirectSolver", value, 1, 1e-12);
            values[0] = -2;
            try
            {
                solver.Factorize(values);
                Expect("an indefinite matrix is refused", 0, 1, 0);
            }
            catch (LapacksException e)
            {
                Expect("an indefinite matrix is refused", e.Status, Pardiso.QUORIN_PARDISO_NUMERIC_FAILED, 0);
            }
        }
    }

    static void LeastSquaresUnderCollection()
    {
        using (var fit = new LeastSquaresFit(new float[] { 1, 1 }, 8, (x, f) =>
        {
            // Arrays move: what the library has kept must not.
            GC.Collect();
            GC.WaitForPendingFinalizers();
            var ballast = new float[1000];
            for (int t = 0; t < f.Length; ++t) f[t] = (float)(x[0] * Math.Exp(-x[1] * t) - 3 * Math.Exp(-0.5 * t)) + ballast[t];
        }))
        {
            float[] x = fit.Solve();
            Expect("LeastSquaresFit, a", x[0], 3, 1e-3);
            Expect("LeastSquaresFit, b", x[1], 0.5, 1e-3);
        }
    }

    static int Main(string[] arguments)
    {
        Expect("exports bound", Library.Bind(), arguments.Length > 0 ? int.Parse(arguments[0]) : double.NaN, 0);
        DotProductInsideAnArray();
        SingularValues();
        Factors();
        ReportThroughTheCallback();
        ConjugateGradients();
        DirectSolution();
        LeastSquaresUnderCollection();
        Console.WriteLine($"the tour is right: {steps} steps");
        // The examples are compiled with it.
        foreach (Type type in typeof(Tour).Assembly.GetTypes())
        {
            const BindingFlags Own = BindingFlags.Static | BindingFlags.NonPublic | BindingFlags.DeclaredOnly;
            MethodInfo main = type.GetMethod("Main", Own, null, Type.EmptyTypes, null);
            if (main != null) Expect(type.Name, (int)main.Invoke(null, null), 0, 0);
        }
        return 0;
    }
}
