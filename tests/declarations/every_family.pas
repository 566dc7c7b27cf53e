{ Calls routines of each family through the units and compares their results with the definitions. Prints how many
  comparisons were right, and each that was wrong. }
program every_family;

{$MODE DELPHI}

uses
  zulgenpx, zulgenpx_batch;

type
  Values = array of Double;
  ComplexValues = array of Zulg64fc;

var
  right, wrong: LongInt;

procedure Expect(condition: Boolean; const what: string);
begin
  if condition then
    Inc(right)
  else
  begin
    Inc(wrong);
    WriteLn('wrong: ', what);
  end;
end;

procedure Near(found, due, bound: Double; const what: string);
begin
  Expect(Abs(found - due) <= bound, what);
  if Abs(found - due) > bound then
    WriteLn(found, ', due is ', due);
end;

procedure Ok(status: ZulgStatus; const what: string);
begin
  Expect(status = StatusOk, what);
end;

function Sample(count: LongInt): Values;
var
  n: LongInt;
begin
  Result := nil;
  SetLength(Result, count);
  for n := 0 to count - 1 do
    Result[n] := (n * 7 + 3) mod 11 - 5;
end;

function ComplexSample(count: LongInt): ComplexValues;
var
  x: Values;
  n: LongInt;
begin
  x := Sample(2 * count);
  Result := nil;
  SetLength(Result, count);
  for n := 0 to count - 1 do
  begin
    Result[n].re := x[2 * n];
    Result[n].im := x[2 * n + 1];
  end;
end;

function Dft(const x: ComplexValues): ComplexValues;
var
  k, n, count: LongInt;
  angle: Double;
begin
  count := Length(x);
  Result := nil;
  SetLength(Result, count);
  for k := 0 to count - 1 do
  begin
    Result[k].re := 0;
    Result[k].im := 0;
    for n := 0 to count - 1 do
    begin
      angle := -2 * Pi * (n * k mod count) / count;
      Result[k].re := Result[k].re + x[n].re * Cos(angle) - x[n].im * Sin(angle);
      Result[k].im := Result[k].im + x[n].re * Sin(angle) + x[n].im * Cos(angle);
    end;
  end;
end;

procedure TestComplex;
var
  x, bins, due, back: ComplexValues;
  narrow: array[0..14] of Zulg32fc;
  k: LongInt;
begin
  x := ComplexSample(15);
  due := Dft(x);
  SetLength(bins, 15);
  SetLength(back, 15);
  Ok(zulgDFTFwd_CToC_15_64fc(@x[0], @bins[0], NoDivByAny), 'complex 15');
  Ok(zulgDFTInv_CToC_64fc(@bins[0], @back[0], 15, DivInvByN), 'complex inverse');
  for k := 0 to 14 do
  begin
    Near(bins[k].re, due[k].re, 1e-12, 're of a bin');
    Near(bins[k].im, due[k].im, 1e-12, 'im of a bin');
    Near(back[k].re, x[k].re, 1e-13, 're of a value');
    narrow[k].re := x[k].re;
    narrow[k].im := x[k].im;
  end;
  Ok(zulgDFTFwd_CToC_15_32fc(@narrow[0], @narrow[0], DivFwdByN), 'in place');
  for k := 0 to 14 do
    Near(narrow[k].im, due[k].im / 15, 1e-5, 'a single bin');
end;

procedure TestStatuses;
var
  x: ComplexValues;
begin
  SetLength(x, 64);
  Expect(zulgDFTFwd_CToC_64fc(@x[0], @x[0], 65, 3) = StatusSizeError, 'a length');
  Expect(zulgDFTFwd_CToC_64fc(nil, @x[0], 64, 3) = StatusNullPointer, 'a null');
  Expect(zulgDFTFwd_CToC_64fc(@x[0], @x[0], 64, 3) = StatusFlagError, 'a flag');
end;

procedure TestReal;
var
  x, ccs, pack, perm, back: Values;
  complexes, due: ComplexValues;
  k: LongInt;
begin
  x := Sample(10);
  SetLength(complexes, 10);
  for k := 0 to 9 do
  begin
    complexes[k].re := x[k];
    complexes[k].im := 0;
  end;
  due := Dft(complexes);
  SetLength(ccs, 12);
  SetLength(pack, 10);
  SetLength(perm, 10);
  SetLength(back, 10);
  Ok(zulgDFTFwd_RToCCS_10_64f(@x[0], @ccs[0], NoDivByAny), 'CCS');
  Ok(zulgDFTFwd_RToPack_64f(@x[0], @pack[0], 10, NoDivByAny), 'Pack');
  Ok(zulgDFTFwd_RToPerm_10_64f(@x[0], @perm[0], NoDivByAny), 'Perm');
  for k := 0 to 5 do
  begin
    Near(ccs[2 * k], due[k].re, 1e-12, 're of a CCS bin');
    Near(ccs[2 * k + 1], due[k].im, 1e-12, 'im of a CCS bin');
  end;
  Expect((pack[9] = ccs[10]) and (perm[1] = ccs[10]) and (pack[1] = ccs[2]), 'layouts');
  Ok(zulgDFTInv_CCSToR_10_64f(@ccs[0], @back[0], DivInvByN), 'from CCS');
  Ok(zulgDFTInv_PackToR_10_64f(@pack[0], @pack[0], DivInvByN), 'from Pack');
  Ok(zulgDFTInv_PermToR_64f(@perm[0], @perm[0], 10, DivInvByN), 'from Perm');
  for k := 0 to 9 do
  begin
    Near(back[k], x[k], 1e-13, 'a value');
    Expect((pack[k] = back[k]) and (perm[k] = back[k]), 'a value of the layouts');
  end;
end;

procedure TestHartley;
var
  x, bins: Values;
  narrow: array[0..10] of Single;
  k, n: LongInt;
  angle, due: Double;
begin
  x := Sample(11);
  SetLength(bins, 11);
  for n := 0 to 10 do
    narrow[n] := x[n];
  Ok(zulgHartley_11_64f(@x[0], @bins[0], NoDivByAny), 'Hartley');
  Ok(zulgHartley_32f(@narrow[0], @narrow[0], 11, NoDivByAny), 'Hartley, single');
  for k := 0 to 10 do
  begin
    due := 0;
    for n := 0 to 10 do
    begin
      angle := 2 * Pi * (n * k mod 11) / 11;
      due := due + x[n] * (Cos(angle) + Sin(angle));
    end;
    Near(bins[k], due, 1e-12, 'a Hartley bin');
    Near(narrow[k], due, 1e-4, 'a single Hartley bin');
  end;
end;

procedure TestWalshHadamard;
var
  x, y, again, buffer: Values;
  bytes: ZulgInt32;
  k, n, bits, sign: LongInt;
  due: Double;
begin
  Ok(zulgWHTGetBufferSize_64f(9, bytes), 'buffer');
  Expect(bytes = 4096, 'bytes of a buffer');
  x := Sample(512);
  SetLength(y, 512);
  SetLength(again, 512);
  SetLength(buffer, bytes div 8);
  Ok(zulgWHT_9_64f(@x[0], @y[0], NoDivByAny, @buffer[0]), 'order 9');
  Ok(zulgWHT_64f(@x[0], @again[0], 9, NoDivByAny, nil), 'order 9 without a buffer');
  for k := 0 to 511 do
  begin
    due := 0;
    for n := 0 to 511 do
    begin
      sign := 1;
      bits := n and k;
      while bits <> 0 do
      begin
        sign := -sign;
        bits := bits and (bits - 1);
      end;
      due := due + sign * x[n];
    end;
    Expect((y[k] = due) and (again[k] = due), 'a Walsh-Hadamard bin');
  end;
end;

procedure TestCosine;
const
  Count = 64;
var
  x, y, z: Values;
  plan, own: PZulgDCT4Plan_64f;
  block: array of Byte;
  bytes: ZulgInt32;
  k, n: LongInt;
  due: Double;
begin
  x := Sample(Count);
  SetLength(y, Count);
  SetLength(z, Count);
  Ok(zulgDCT4InitAlloc_64f(plan, Count), 'plan');
  Ok(zulgDCT4_64f(@x[0], @y[0], plan), 'DCT-IV');
  Ok(zulgDCT4Free_64f(plan), 'free');
  for k := 0 to Count - 1 do
  begin
    due := 0;
    for n := 0 to Count - 1 do
      due := due + x[n] * Cos(Pi * (n + 0.5) * (k + 0.5) / Count);
    Near(y[k], due, 1e-11, 'a DCT-IV bin');
  end;
  Ok(zulgDCT4GetSize_64f(Count, bytes), 'bytes of a plan');
  Expect(bytes = 1696, 'bytes of a plan');
  SetLength(block, bytes);
  Ok(zulgDCT4Init_64f(own, Count, @block[0]), 'a plan in memory of one''s own');
  Ok(zulgDCT4_64f(@x[0], @z[0], own), 'its run');
  for k := 0 to Count - 1 do
    Expect(z[k] = y[k], 'both plans');
  Expect(zulgDCT4InitAlloc_64f(plan, 7) = StatusSizeError, 'a plan of 7 points');
end;

procedure TestBatches;
var
  x, y, one: ComplexValues;
  j, k: LongInt;
  source: array[0..3] of Single = (1, 2, 3, 4);
  spread: array[0..6] of Single = (9, 9, 9, 9, 9, 9, 9);
begin
  x := ComplexSample(12 * 5);
  SetLength(y, 12 * 5);
  SetLength(one, 12);
  Ok(zulgBatchDFTFwd_CToC_64fc(@x[0], 5, 1, @y[0], 1, 12, 12, NoDivByAny, 5), 'batch');
  for j := 0 to 4 do
  begin
    for k := 0 to 11 do
      one[k] := x[k * 5 + j];
    Ok(zulgDFTFwd_CToC_12_64fc(@one[0], @one[0], NoDivByAny), 'one of the batch');
    for k := 0 to 11 do
      Expect((y[j * 12 + k].re = one[k].re) and (y[j * 12 + k].im = one[k].im), 'a bin of the batch');
  end;
  Ok(zulgBatchWHT_32f(@source[0], 1, 2, @spread[0], 2, 4, 1, NoDivByAny, 2, nil), 'steps');
  Expect((spread[0] = 3) and (spread[1] = 9) and (spread[2] = -1) and (spread[4] = 7), 'steps');
end;

procedure TestVersion;
var
  version: PLibVersion;
begin
  version := zulgenGetLibVersion();
  Expect((version^.major = 7) and (version^.minor = 0), 'version');
  Expect(version^.targetCpu[0] + version^.targetCpu[1] = 'px', 'processor');
  Expect(AnsiString(version^.name) = 'zulgenpx-7.0.dll', 'name');
  Expect(Copy(AnsiString(version^.version), 1, 10) = '7.0 build ', 'text of the version');
  Expect(Length(AnsiString(version^.buildDate)) = 11, 'date');
end;

begin
  TestVersion;
  TestComplex;
  TestStatuses;
  TestReal;
  TestHartley;
  TestWalshHadamard;
  TestCosine;
  TestBatches;
  WriteLn(right, ' right, ', wrong, ' wrong');
  if wrong <> 0 then
    Halt(1);
end.
