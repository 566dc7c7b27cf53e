{ Declarations of zulgenpx 7.0, a library of small signal transforms, for Free Pascal and Delphi.
  Written by bindings/declarations.py; do not edit.

  Put this unit where the compiler finds units, and zulgenpx-7.0.dll and zulcore-7.0.dll into the folder of the program.
  On Linux the linker must find libzulgenpx-7.0.so (fpc -Fl<folder>), and the loader of the program too.

  Arrays are passed by the address of their first element, @x[0], and are not checked: their lengths must be those of
  the header zulgenpx.h, which tells what each routine does. Source and destination may be one array. }
unit zulgenpx;

{$IFDEF FPC}
{$MODE DELPHI}
{$PACKRECORDS C}
{$ENDIF}

interface

const
{$IFDEF MSWINDOWS}
  ZulgFile = 'zulgenpx-7.0.dll';
{$ELSE}
  ZulgFile = 'libzulgenpx-7.0.so';
{$ENDIF}

type
{$IFDEF FPC}
  ZulgInt32 = LongInt;
{$ELSE}
  ZulgInt32 = Integer;
{$ENDIF}
  ZulgStatus = ZulgInt32;

const
  StatusOk = 0;
  StatusPlanKindError = -5;
  StatusSizeError = -6;
  StatusNullPointer = -8;
  StatusFlagError = -16;

  { The scale. Exactly one of these; they are no bits to be combined. }
  DivFwdByN = 1;
  DivInvByN = 2;
  DivBySqrtN = 4;
  NoDivByAny = 8;

type
  Zulg32f = Single;
  Zulg64f = Double;
  PZulg32f = ^Zulg32f;
  PZulg64f = ^Zulg64f;

  Zulg32fc = record
    re, im: Single;
  end;
  PZulg32fc = ^Zulg32fc;

  Zulg64fc = record
    re, im: Double;
  end;
  PZulg64fc = ^Zulg64fc;

  { The version record of the library that is loaded. }
  LibVersion = record
    major, minor, majorBuild, build: ZulgInt32;
    targetCpu: array[0..3] of AnsiChar;
    name, version, buildDate: PAnsiChar;
  end;
  PLibVersion = ^LibVersion;

  { Plans of the DCT-IV are known by their address only. }
  ZulgDCT4Plan_32f = record
  end;
  PZulgDCT4Plan_32f = ^ZulgDCT4Plan_32f;
  ZulgDCT4Plan_64f = record
  end;
  PZulgDCT4Plan_64f = ^ZulgDCT4Plan_64f;

@routines@

implementation

end.
