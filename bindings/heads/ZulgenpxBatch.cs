// Declarations of the batch library of zulgenpx 7.0: many transforms in one call. Written by bindings/declarations.py;
// do not edit. Used together with Zulgenpx.cs, which tells how. 32-bit Windows has no batch library.
//
// Steps and distances count elements from the first one of an array, or from an address; for a start inside an array
// use addresses. The header zulgenpx_batch.h tells what each routine does.
using System;
using System.Runtime.InteropServices;

public static class ZulgenpxBatch
{
#if ZULG_LINUX
    private const string File = "libzulgenpx-batch-7.0.so";
#else
    private const string File = "zulgenpx-batch-7.0.dll";
#endif

    // The convention of the platform.
    private const CallingConvention Convention = CallingConvention.Winapi;

@routines@
}
