// Declarations of zulgenpx 7.0, a library of small signal transforms. Written by bindings/declarations.py; do not edit.
//
// Add this file to a project, and put zulgenpx-7.0.dll and zulcore-7.0.dll into the folder of the program. On Linux
// define ZULG_LINUX: the file is then libzulgenpx-7.0.so, which the system's loader must find. With ZULG_NUMERICS
// defined, arrays of System.Numerics.Complex are taken as well.
//
// Each routine with arrays can be called with arrays, or with addresses (IntPtr) where several transforms are in one
// array or the data is not managed. Arrays are neither copied nor checked: their lengths must be those of the header
// zulgenpx.h, which tells what each routine does. Source and destination may be one array. A plan of the DCT-IV made by
// InitAlloc is an object that frees itself, and which can be disposed of earlier.
using System;
using System.Runtime.InteropServices;

public enum ZulgStatus : int
{
    StatusOk = 0,
    StatusPlanKindError = -5,
    StatusSizeError = -6,
    StatusNullPointer = -8,
    StatusFlagError = -16
}

/// The scale. Exactly one of these; they are no bits to be combined.
public enum ZulgFlag : int
{
    DivFwdByN = 1,
    DivInvByN = 2,
    DivBySqrtN = 4,
    NoDivByAny = 8
}

[StructLayout(LayoutKind.Sequential)]
public struct Zulg32fc
{
    public float re, im;

    public Zulg32fc(float re, float im)
    {
        this.re = re;
        this.im = im;
    }
}

[StructLayout(LayoutKind.Sequential)]
public struct Zulg64fc
{
    public double re, im;

    public Zulg64fc(double re, double im)
    {
        this.re = re;
        this.im = im;
    }
}

/// The version record of the library that is loaded.
[StructLayout(LayoutKind.Sequential, CharSet = CharSet.Ansi)]
public struct LibVersion
{
    public int major;
    public int minor;
    public int majorBuild;
    public int build;
    [MarshalAs(UnmanagedType.ByValTStr, SizeConst = 4)]
    public string targetCpu;
    [MarshalAs(UnmanagedType.LPStr)]
    public string name;
    [MarshalAs(UnmanagedType.LPStr)]
    public string version;
    [MarshalAs(UnmanagedType.LPStr)]
    public string buildDate;
}

/// A plan of zulgDCT4InitAlloc_32f.
public sealed class ZulgDCT4Plan_32f : SafeHandle
{
    private ZulgDCT4Plan_32f() : base(IntPtr.Zero, true) { }

    public override bool IsInvalid { get { return handle == IntPtr.Zero; } }

    protected override bool ReleaseHandle()
    {
        return Zulgenpx.zulgDCT4Free_32f(handle) == ZulgStatus.StatusOk;
    }
}

/// A plan of zulgDCT4InitAlloc_64f.
public sealed class ZulgDCT4Plan_64f : SafeHandle
{
    private ZulgDCT4Plan_64f() : base(IntPtr.Zero, true) { }

    public override bool IsInvalid { get { return handle == IntPtr.Zero; } }

    protected override bool ReleaseHandle()
    {
        return Zulgenpx.zulgDCT4Free_64f(handle) == ZulgStatus.StatusOk;
    }
}

public static class Zulgenpx
{
#if ZULG_LINUX
    private const string File = "libzulgenpx-7.0.so";
#else
    private const string File = "zulgenpx-7.0.dll";
#endif

    // StdCall on 32-bit Windows, and elsewhere the convention of the platform.
    private const CallingConvention Convention = CallingConvention.Winapi;

    /// The version record as a value.
    public static LibVersion Version()
    {
        return (LibVersion)Marshal.PtrToStructure(zulgenGetLibVersion(), typeof(LibVersion));
    }

@routines@
}
