{ Calls of the families that the tour and the examples leave out, and calls that divide by zero or overflow on the way: in a Pascal program, floating-point
  exceptions are unmasked. None may be raised, and the program has its settings after each call. The first wrong step ends with status 1. }
program unmasked;

{$MODE DELPHI}
{$APPTYPE CONSOLE}

uses
  QuorinLapacks;

const
  ControlWord = $1332; { the x87 with invalid operation, division by zero and overflow unmasked }
  SSESettings = $1900; { the same of SSE }

procedure Expect(const Step: AnsiString; Value, Wanted, Tolerance: Double);
begin
  if (Get8087CW and $0F3F <> ControlWord and $0F3F) or (GetMXCSR and $FFC0 <> SSESettings) then
  begin
    WriteLn(Step, ': other floating-point settings');
    Halt(1);
  end;
  if not (Abs(Value - Wanted) <= Tolerance) then
  begin
    WriteLn(Step, ': ', Value, ' instead of ', Wanted);
    Halt(1);
  end;
  WriteLn(Step, ': ', Value:0:6);
end;

procedure Lapack;
var
  A: array[0..3] of Single = (2, 0, 0, 3);
  Huge: array[0..1] of Single = (3e30, 4e30);
  W, Tau: array[0..1] of Single;
  Z: array[0..3] of Single;
  Supports: array[0..3] of Int32;
  Work: array[0..199] of Single;
  Sizes: array[0..99] of Int32;
  Found, Info: Int32;
begin
  ssyevr('V', 'A', 'U', 2, @A, 2, 0, 0, 1, 1, 0, Found, @W, @Z, 2, @Supports, @Work, 200, @Sizes, 100, Info);
  Expect('ssyevr', W[0] + 10 * W[1], 32, 1e-4);
  sgeqrf(2, 1, @Huge, 2, @Tau, @Work, 200, Info);
  Expect('sgeqrf of huge numbers', Huge[0] / -1e30, 5, 1e-5);
end;

procedure Bessel;
var
  Z: TQuorinDoubleComplex = (re: 1e-300; im: 0);
  Y: TQuorinDoubleComplex;
  Underflows, Error: Int32;
begin
  CBESK(Z, 0, 1, 1, @Y, Underflows, Error);
  Expect('CBESK', Y.re, 690.891459, 1e-5); { -log(z / 2) - 0.577216 }
  CBESK(Z, 300, 1, 1, @Y, Underflows, Error);
  Expect('CBESK that overflows', Error, QUORIN_AMOS_OVERFLOW, 0);
end;

procedure Slap;
var
  Rows: array[0..4] of Int32 = (1, 2, 2, 3, 3);
  Columns: array[0..4] of Int32 = (1, 1, 2, 2, 3);
  A: array[0..4] of Single = (2, 1, 4, 1, 5);
  B: array[0..2] of Single = (2, 9, 17);
  X: array[0..2] of Single = (0, 0, 0);
  RWork: array[0..999] of Single;
  IWork: array[0..199] of Int32;
  Tolerance, Residual: Single;
  Silent, Room, Integers, Iterations, Error: Int32;
begin
  Tolerance := 1e-4;
  Silent := 0;
  Room := 1000;
  Integers := 200;
  SSLUGM(3, @B, @X, 5, @Rows, @Columns, @A, 0, 10, QUORIN_SLAP_RESIDUAL, Tolerance, 10, Iterations, Residual, Error, @Silent, @RWork, @Room, @IWork, @Integers);
  Expect('SSLUGM, error', Error, 0, 0);
  Expect('SSLUGM', X[0] + 10 * X[1] + 100 * X[2], 321, 1e-3);
end;

procedure Feast;
var
  A: array[0..2] of Single = (1, 2, 3);
  Starts: array[0..3] of Int32 = (1, 2, 3, 4);
  Columns: array[0..2] of Int32 = (1, 2, 3);
  Parameters: array[0..127] of Int32;
  E, Residuals: array[0..2] of Single;
  X: array[0..8] of Single;
  Error: Single;
  Loop, Room, Found, Info: Int32;
begin
  feastinit_32f(@Parameters);
  Room := 2;
  sfeast_scsrev('U', 3, @A, @Starts, @Columns, @Parameters, Error, Loop, 1.5, 2.5, Room, @E, @X, Found, @Residuals, Info);
  Expect('sfeast_scsrev, found', Found, 1, 0);
  Expect('sfeast_scsrev', E[0], 2, 1e-4);
end;

procedure Taucs;
type
  TColumns = array[0..2] of Int32;
  PColumns = ^TColumns;
  TEntries = array[0..1] of Double;
  PEntries = ^TEntries;
var
  A: PTaucsCcsMatrix;
  X: array[0..1] of Double = (1, 10);
  Y: array[0..1] of Double;
  I: Int32;
begin
  A := taucs_ccs_create(2, 2, 2, TAUCS_DOUBLE);
  for I := 0 to 2 do PColumns(A^.colptr)^[I] := I;
  for I := 0 to 1 do PColumns(A^.rowind)^[I] := I;
  PEntries(A^.values)^[0] := 3;
  PEntries(A^.values)^[1] := 1e200;
  taucs_ccs_times_vec(A, @X, @Y);
  Expect('taucs_ccs_times_vec', Y[0] + Y[1] / 1e201, 4, 1e-12);
  PEntries(A^.values)^[1] := 1e308;
  taucs_ccs_times_vec(A, @X, @Y); { overflows }
  Expect('taucs_ccs_times_vec, beside infinity', Y[0], 3, 0);
  taucs_ccs_free(A);
end;

procedure Square(var M: Int32; var N: Int32; X: PSingle; F: PSingle); cdecl;
begin
  F^ := X^ * X^;
end;

procedure SmallOnes;
var
  A: array[0..3] of Single = (7, 8, 9, 6);
  Places: array[0..1] of Int32 = (3, 1);
  Y: array[0..1] of Single;
  X, Step, Jacobian: Single;
begin
  vspackv(2, @A, @Places, @Y);
  Expect('vspackv', Y[0] + 10 * Y[1], 86, 0);
  X := 3;
  Step := 1e-3;
  Expect('sjacobi, status', sjacobi(@Square, 1, 1, @Jacobian, @X, @Step), 1501, 0);
  Expect('sjacobi', Jacobian, 6, 1e-2);
end;

begin
  Set8087CW(ControlWord);
  SetMXCSR(SSESettings);
  Lapack;
  Bessel;
  Slap;
  Feast;
  Taucs;
  SmallOnes;
end.
