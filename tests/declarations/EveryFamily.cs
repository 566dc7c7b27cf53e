// Calls routines of each family through the declarations and compares their results with the definitions. Prints how
// many comparisons were right, and each that was wrong.
using System;
using System.Reflection;
using System.Runtime.InteropServices;

public static class EveryFamily
{
    private static int right, wrong;

    private static void Expect(bool condition, string what)
    {
        if (condition) ++right;
        else
        {
            ++wrong;
            Console.WriteLine("wrong: " + what);
        }
    }

    private static void Near(double found, double due, double bound, string what)
    {
        Expect(Math.Abs(found - due) <= bound, what + ": " + found + ", due is " + due);
    }

    private static void Ok(ZulgStatus status, string what)
    {
        Expect(status == ZulgStatus.StatusOk, what + ": " + status);
    }

    private static double[] Sample(int count)
    {
        double[] x = new double[count];
        for (int n = 0; n < count; ++n) x[n] = (n * 7 + 3) % 11 - 5;
        return x;
    }

    private static Zulg64fc[] Dft(Zulg64fc[] x)
    {
        int count = x.Length;
        Zulg64fc[] bins = new Zulg64fc[count];
        for (int k = 0; k < count; ++k)
        {
            for (int n = 0; n < count; ++n)
            {
                double angle = -2 * Math.PI * (n * k % count) / count, c = Math.Cos(angle), s = Math.Sin(angle);
                bins[k].re += x[n].re * c - x[n].im * s;
                bins[k].im += x[n].re * s + x[n].im * c;
            }
        }
        return bins;
    }

    private static Zulg64fc[] ComplexSample(int count)
    {
        double[] values = Sample(2 * count);
        Zulg64fc[] x = new Zulg64fc[count];
        for (int n = 0; n < count; ++n) x[n] = new Zulg64fc(values[2 * n], values[2 * n + 1]);
        return x;
    }

    private static void Complex()
    {
        Zulg64fc[] x = ComplexSample(15), bins = new Zulg64fc[15], due = Dft(x), back = new Zulg64fc[15];
        Ok(Zulgenpx.zulgDFTFwd_CToC_15_64fc(x, bins, ZulgFlag.NoDivByAny), "complex 15");
        Ok(Zulgenpx.zulgDFTInv_CToC_64fc(bins, back, 15, ZulgFlag.DivInvByN), "complex inverse");
        for (int k = 0; k < 15; ++k)
        {
            Near(bins[k].re, due[k].re, 1e-12, "re of bin " + k);
            Near(bins[k].im, due[k].im, 1e-12, "im of bin " + k);
            Near(back[k].re, x[k].re, 1e-13, "re of value " + k);
        }

        Zulg32fc[] single = new Zulg32fc[15];
        for (int n = 0; n < 15; ++n) single[n] = new Zulg32fc((float)x[n].re, (float)x[n].im);
        Ok(Zulgenpx.zulgDFTFwd_CToC_15_32fc(single, single, ZulgFlag.DivFwdByN), "in place");
        for (int k = 0; k < 15; ++k) Near(single[k].im, due[k].im / 15, 1e-5, "single bin " + k);

        // The second half of one array, by its address.
        Zulg64fc[] two = new Zulg64fc[30];
        Array.Copy(x, 0, two, 15, 15);
        GCHandle pinned = GCHandle.Alloc(two, GCHandleType.Pinned);
        IntPtr second = new IntPtr(pinned.AddrOfPinnedObject().ToInt64() + 15 * 16);
        Ok(Zulgenpx.zulgDFTFwd_CToC_15_64fc(second, second, ZulgFlag.NoDivByAny), "an address");
        pinned.Free();
        Expect(two[14].re == 0 && two[15].re == bins[0].re && two[29].im == bins[14].im, "results at an address");
#if ZULG_NUMERICS
        System.Numerics.Complex[] numbers = new System.Numerics.Complex[15];
        for (int n = 0; n < 15; ++n) numbers[n] = new System.Numerics.Complex(x[n].re, x[n].im);
        Ok(Zulgenpx.zulgDFTFwd_CToC_15_64fc(numbers, numbers, ZulgFlag.NoDivByAny), "System.Numerics");
        for (int k = 0; k < 15; ++k)
            Expect(numbers[k].Real == bins[k].re && numbers[k].Imaginary == bins[k].im, "number " + k);
#endif
    }

    private static void Statuses()
    {
        Zulg64fc[] x = new Zulg64fc[64];
        Expect(Zulgenpx.zulgDFTFwd_CToC_64fc(x, x, 65, (ZulgFlag)3) == ZulgStatus.StatusSizeError, "a length");
        Expect(Zulgenpx.zulgDFTFwd_CToC_64fc(null, x, 64, (ZulgFlag)3) == ZulgStatus.StatusNullPointer, "a null");
        Expect(Zulgenpx.zulgDFTFwd_CToC_64fc(x, x, 64, (ZulgFlag)3) == ZulgStatus.StatusFlagError, "a flag");
    }

    private static void Real()
    {
        double[] x = Sample(10), ccs = new double[12], pack = new double[10], perm = new double[10];
        double[] back = new double[10];
        Zulg64fc[] values = new Zulg64fc[10];
        for (int n = 0; n < 10; ++n) values[n].re = x[n];
        Zulg64fc[] due = Dft(values);
        Ok(Zulgenpx.zulgDFTFwd_RToCCS_10_64f(x, ccs, ZulgFlag.NoDivByAny), "CCS");
        Ok(Zulgenpx.zulgDFTFwd_RToPack_64f(x, pack, 10, ZulgFlag.NoDivByAny), "Pack");
        Ok(Zulgenpx.zulgDFTFwd_RToPerm_10_64f(x, perm, ZulgFlag.NoDivByAny), "Perm");
        for (int k = 0; k <= 5; ++k)
        {
            Near(ccs[2 * k], due[k].re, 1e-12, "re of CCS bin " + k);
            Near(ccs[2 * k + 1], due[k].im, 1e-12, "im of CCS bin " + k);
        }
        Expect(pack[9] == ccs[10] && perm[1] == ccs[10] && pack[1] == ccs[2] && perm[3] == ccs[3], "layouts");
        Ok(Zulgenpx.zulgDFTInv_CCSToR_10_64f(ccs, back, ZulgFlag.DivInvByN), "from CCS");
        for (int n = 0; n < 10; ++n) Near(back[n], x[n], 1e-13, "value " + n);
        Ok(Zulgenpx.zulgDFTInv_PackToR_10_64f(pack, pack, ZulgFlag.DivInvByN), "from Pack");
        Ok(Zulgenpx.zulgDFTInv_PermToR_64f(perm, perm, 10, ZulgFlag.DivInvByN), "from Perm");
        for (int n = 0; n < 10; ++n) Expect(pack[n] == back[n] && perm[n] == back[n], "layouts, value " + n);
    }

    private static void Hartley()
    {
        double[] x = Sample(11), bins = new double[11];
        float[] single = new float[11];
        for (int n = 0; n < 11; ++n) single[n] = (float)x[n];
        Ok(Zulgenpx.zulgHartley_11_64f(x, bins, ZulgFlag.NoDivByAny), "Hartley");
        Ok(Zulgenpx.zulgHartley_32f(single, single, 11, ZulgFlag.NoDivByAny), "Hartley, single");
        for (int k = 0; k < 11; ++k)
        {
            double due = 0;
            for (int n = 0; n < 11; ++n)
            {
                double angle = 2 * Math.PI * (n * k % 11) / 11;
                due += x[n] * (Math.Cos(angle) + Math.Sin(angle));
            }
            Near(bins[k], due, 1e-12, "Hartley bin " + k);
            Near(single[k], due, 1e-4, "single Hartley bin " + k);
        }
    }

    private static void WalshHadamard()
    {
        int bytes;
        Ok(Zulgenpx.zulgWHTGetBufferSize_64f(9, out bytes), "buffer");
        Expect(bytes == 4096, "bytes of a buffer: " + bytes);
        double[] x = Sample(512), y = new double[512], again = new double[512], buffer = new double[bytes / 8];
        Ok(Zulgenpx.zulgWHT_9_64f(x, y, ZulgFlag.NoDivByAny, buffer), "order 9");
        Ok(Zulgenpx.zulgWHT_64f(x, again, 9, ZulgFlag.NoDivByAny, null), "order 9 without a buffer");
        for (int k = 0; k < 512; ++k)
        {
            double due = 0;
            for (int n = 0; n < 512; ++n)
            {
                int sign = 1;
                for (int bits = n & k; bits != 0; bits &= bits - 1) sign = -sign;
                due += sign * x[n];
            }
            Expect(y[k] == due && again[k] == due, "Walsh-Hadamard bin " + k);
        }
        float[] two = { 1, 2 };
        Ok(Zulgenpx.zulgWHT_1_32f(two, two, ZulgFlag.DivFwdByN, null), "order 1");
        Expect(two[0] == 1.5f && two[1] == -0.5f, "order 1: " + two[0] + " " + two[1]);
    }

    private static void Cosine()
    {
        const int count = 64;
        double[] x = Sample(count), y = new double[count], z = new double[count];
        ZulgDCT4Plan_64f plan;
        Ok(Zulgenpx.zulgDCT4InitAlloc_64f(out plan, count), "plan");
        using (plan)
        {
            Ok(Zulgenpx.zulgDCT4_64f(x, y, plan), "DCT-IV");
            Ok(Zulgenpx.zulgDCT4_64f(y, y, plan), "DCT-IV in place");
            for (int n = 0; n < count; ++n) Near(y[n], x[n] * count / 2, 1e-11, "twice, value " + n);
            Ok(Zulgenpx.zulgDCT4_64f(x, y, plan), "DCT-IV once more");
        }
        Expect(plan.IsClosed, "the plan is closed");
        for (int k = 0; k < count; ++k)
        {
            double due = 0;
            for (int n = 0; n < count; ++n) due += x[n] * Math.Cos(Math.PI * (n + 0.5) * (k + 0.5) / count);
            Near(y[k], due, 1e-11, "DCT-IV bin " + k);
        }

        int bytes;
        IntPtr own;
        Ok(Zulgenpx.zulgDCT4GetSize_64f(count, out bytes), "bytes of a plan");
        Expect(bytes == 1696, "bytes of a plan: " + bytes);
        IntPtr block = Marshal.AllocHGlobal(bytes);
        Ok(Zulgenpx.zulgDCT4Init_64f(out own, count, block), "a plan in memory of one's own");
        Ok(Zulgenpx.zulgDCT4_64f(x, z, own), "its run");
        for (int k = 0; k < count; ++k) Expect(z[k] == y[k], "both plans, bin " + k);
        Marshal.FreeHGlobal(block);

        Expect(Zulgenpx.zulgDCT4InitAlloc_64f(out plan, 7) == ZulgStatus.StatusSizeError, "a plan of 7 points");
        ZulgDCT4Plan_32f single;
        Ok(Zulgenpx.zulgDCT4InitAlloc_32f(out single, 2), "a single plan");
        float[] pair = { 1, 0 };
        Ok(Zulgenpx.zulgDCT4_32f(pair, pair, single), "a single run");
        Near(pair[0], Math.Cos(Math.PI / 8), 1e-6, "single DCT-IV");
        single.Dispose();
    }

    private static void Batches()
    {
        Zulg64fc[] x = ComplexSample(12 * 5), y = new Zulg64fc[12 * 5], one = new Zulg64fc[12];
        Ok(ZulgenpxBatch.zulgBatchDFTFwd_CToC_64fc(x, 5, 1, y, 1, 12, 12, ZulgFlag.NoDivByAny, 5), "batch");
        for (int j = 0; j < 5; ++j)
        {
            for (int n = 0; n < 12; ++n) one[n] = x[n * 5 + j];
            Ok(Zulgenpx.zulgDFTFwd_CToC_12_64fc(one, one, ZulgFlag.NoDivByAny), "one of the batch");
            for (int k = 0; k < 12; ++k) Expect(y[j * 12 + k].Equals(one[k]), "batch " + j + ", bin " + k);
        }

        // What is between the results stays.
        float[] source = { 1, 2, 3, 4 }, spread = { 9, 9, 9, 9, 9, 9, 9 };
        Ok(ZulgenpxBatch.zulgBatchWHT_32f(source, 1, 2, spread, 2, 4, 1, ZulgFlag.NoDivByAny, 2, null), "steps");
        Expect(spread[0] == 3 && spread[1] == 9 && spread[2] == -1 && spread[4] == 7 && spread[5] == 9, "steps");

        int bytes;
        Ok(ZulgenpxBatch.zulgBatchDCT4GetBufferSize_64f(8, out bytes), "buffer of a batch");
        double[] values = Sample(16), results = new double[16], single = new double[8], buffer = new double[bytes / 8];
        ZulgDCT4Plan_64f plan;
        Ok(Zulgenpx.zulgDCT4InitAlloc_64f(out plan, 8), "plan of a batch");
        Ok(ZulgenpxBatch.zulgBatchDCT4_64f(values, 2, 1, results, 1, 8, plan, 2, buffer), "batch of DCT-IV");
        for (int n = 0; n < 8; ++n) single[n] = values[2 * n + 1];
        Ok(Zulgenpx.zulgDCT4_64f(single, single, plan), "one DCT-IV");
        for (int k = 0; k < 8; ++k) Expect(results[8 + k] == single[k], "batch of DCT-IV, bin " + k);
        plan.Dispose();
    }

    private static void Version()
    {
        LibVersion version = Zulgenpx.Version();
        Expect(version.major == 7 && version.minor == 0, "version " + version.major);
        Expect(version.name == "zulgenpx-7.0.dll" && version.targetCpu == "px", version.name + version.targetCpu);
        Expect(version.version.StartsWith("7.0 build "), version.version);
        Expect(version.buildDate.Length == 11, version.buildDate);
    }

    /// Binds each declaration to the routine of its name, without a call. Returns how many there are.
    private static int Bind(Type type)
    {
        int bound = 0;
        foreach (MethodInfo method in type.GetMethods(BindingFlags.Public | BindingFlags.Static))
        {
            if ((method.Attributes & MethodAttributes.PinvokeImpl) == 0) continue;
            try
            {
                Marshal.Prelink(method);
                ++bound;
            }
            catch (Exception exception)
            {
                Expect(false, method + ": " + exception.Message);
            }
        }
        return bound;
    }

    public static int Main()
    {
        int bound = Bind(typeof(Zulgenpx)), batches = Bind(typeof(ZulgenpxBatch));
        Console.WriteLine(bound + " and " + batches + " declarations are bound");
        Version();
        Complex();
        Statuses();
        Real();
        Hartley();
        WalshHadamard();
        Cosine();
        Batches();
        Console.WriteLine(right + " right, " + wrong + " wrong");
        return wrong == 0 ? 0 : 1;
    }
}
