Attribute VB_Name = "Zulgenpx"
' Declarations of zulgenpx 7.0, a library of small signal transforms. Written by bindings/declarations.py; do not edit.
'
' Import this module, and put zulgenpx-7.0.dll and zulcore-7.0.dll where Windows finds them: into the folder of the
' program, or load zulgenpx-7.0.dll by its path first. The DLL must be for 32 bits or 64 bits as the program is.
'
' Arrays are passed by their first element, x(0), and are not checked: their lengths must be those of the header
' zulgenpx.h, which tells what each routine does. Source and destination may be one array. What may be null and what
' is a block of bytes is an address: VarPtr(buffer(0)), or 0. Plans of the DCT-IV are addresses too.
Option Explicit

Public Enum ZulgStatus
    StatusOk = 0
    StatusPlanKindError = -5
    StatusSizeError = -6
    StatusNullPointer = -8
    StatusFlagError = -16
End Enum

' The scale. Exactly one of these; they are no bits to be combined.
Public Enum ZulgFlag
    DivFwdByN = 1
    DivInvByN = 2
    DivBySqrtN = 4
    NoDivByAny = 8
End Enum

Public Type Zulg32fc
    re As Single
    im As Single
End Type

Public Type Zulg64fc
    re As Double
    im As Double
End Type

' The version record, which is at the address that zulgenGetLibVersion returns. The last three are addresses of texts
' that end in a zero byte.
Public Type LibVersion
    major As Long
    minor As Long
    majorBuild As Long
    build As Long
    targetCpu(0 To 3) As Byte
#If VBA7 Then
    name As LongPtr
    version As LongPtr
    buildDate As LongPtr
#Else
    name As Long
    version As Long
    buildDate As Long
#End If
End Type

@routines@
