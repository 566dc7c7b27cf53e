Attribute VB_Name = "ZulgenpxBatch"
' Declarations of the batch library of zulgenpx 7.0: many transforms in one call. Written by
' bindings/declarations.py; do not edit. Used together with zulgenpx.bas, which tells how. Only 64-bit Windows has the
' batch library. The header zulgenpx_batch.h tells what each routine does.
Option Explicit

#If Win64 Then
@routines@
#End If
