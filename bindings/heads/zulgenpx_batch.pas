{ Declarations of the batch library of zulgenpx 7.0, many transforms in one call, for Free Pascal and Delphi.
  Written by bindings/declarations.py; do not edit. Used together with the unit zulgenpx, which tells how. 32-bit
  Windows has no batch library. The header zulgenpx_batch.h tells what each routine does. }
unit zulgenpx_batch;

{$IFDEF FPC}
{$MODE DELPHI}
{$ENDIF}

interface

uses
  zulgenpx;

const
{$IFDEF MSWINDOWS}
  ZulgFile = 'zulgenpx-batch-7.0.dll';
{$ELSE}
  ZulgFile = 'libzulgenpx-batch-7.0.so';
{$ENDIF}

@routines@

implementation

end.
