// Singular values: a picture as a sum of few products of a column and a row.
using System;
using Quorin.Lapacks;

static class Compress
{
    const int Rows = 80, Columns = 60, Kept = 3;

    static int Main()
    {
        // Two waves and a disk, column-major.
        var picture = new float[Rows * Columns];
        for (int j = 0; j < Columns; ++j)
            for (int i = 0; i < Rows; ++i)
                picture[j * Rows + i] = (float)(Math.Sin(0.1 * i) * Math.Cos(0.2 * j)) + ((i - 40) * (i - 40) + (j - 30) * (j - 30) < 100 ? 1 : 0);

        float[] a = (float[])picture.Clone(), s = new float[Columns], u = new float[Rows * Columns], vt = new float[Columns * Columns];
        float[] work = new float[1];
        int[] iwork = new int[8 * Columns];
        int info = 0;
        for (int length = -1; info == 0; length = work.Length)  // the first call asks for the size of the work space
        {
            Lapack.sgesdd(Jobz.S, Rows, Columns, a, Rows, s, u, Rows, vt, Columns, work, length, iwork, out info);
            if (length != -1) break;
            work = new float[(int)work[0]];
        }
        if (info != 0) return 1;

        // What is lost is the first singular value that is left out (Eckart and Young), here as the norm of the difference.
        for (int j = 0; j < Columns; ++j)
            for (int k = 0; k < Kept; ++k) vt[j * Columns + k] *= s[k];
        Blas.sgemm(Transa.N, Transb.N, Rows, Columns, Kept, -1, u, Rows, vt, Columns, 1, picture, Rows);
        double lost = Blas.snrm2(picture.Length, picture, 1), rest = 0, all = 0;
        for (int k = 0; k < Columns; ++k)
        {
            all += s[k] * s[k];
            if (k >= Kept) rest += s[k] * s[k];
        }
        double numbers = (double)Kept * (Rows + Columns + 1) / (Rows * Columns);
        Console.WriteLine($"{numbers:P0} of the numbers, {1 - rest / all:P1} of the picture");
        return Math.Abs(lost - Math.Sqrt(rest)) < 1e-3 && rest < 0.05 * all ? 0 : 1;
    }
}
