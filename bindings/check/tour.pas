{ The tour of the bindings in Pascal: each step prints a line, the first wrong one ends with status 1. }
program tour;

{$IFDEF FPC}{$MODE DELPHI}{$ENDIF}
{$APPTYPE CONSOLE}

uses
  SysUtils, QuorinLapacks;

var
  Steps: Integer = 0;

{ QUORIN_FALSIFIED is the number of a step whose wanted value is falsified, for a proof that each can fail. }
procedure Expect(const Step: AnsiString; Value, Wanted, Tolerance: Double);
begin
  Inc(Steps);
  if IntToStr(Steps) = GetEnvironmentVariable('QUORIN_FALSIFIED') then Wanted := Wanted + 1 + 2 * Tolerance;
  if not (Abs(Value - Wanted) <= Tolerance) then
  begin
    WriteLn(Step, ': ', Value:0:7, ' instead of ', Wanted:0:7);
    Halt(1);
  end;
  WriteLn(Step, ': ', Value:0:6);
end;

procedure DotProductInsideAnArray;
var
  Data: array[0..6] of Single;
  I: Integer;
begin
  for I := 0 to 6 do Data[I] := I;
  Expect('sdot_Idx', sdot_Idx(3, @Data, 1, 1, @Data, 4, 1), 32, 0);
end;

procedure SingularValues;
var
  A: array[0..5] of Single = (1, 3, 5, 2, 4, 6); { 3 x 2, by columns }
  S: array[0..1] of Single;
  Size: Single;
  Work: array of Single;
  Info: Int32;
begin
  sgesvd('N', 'N', 3, 2, @A, 3, @S, nil, 1, nil, 1, @Size, -1, Info);
  SetLength(Work, Round(Size));
  sgesvd('N', 'N', 3, 2, @A, 3, @S, nil, 1, nil, 1, @Work[0], Length(Work), Info);
  Expect('sgesvd, info', Info, 0, 0);
  Expect('sgesvd, s(1)', S[0], 9.5255181, 1e-5);
  Expect('sgesvd, s(2)', S[1], 0.5143006, 1e-5);
end;

var
  Reported: Integer = 0;

procedure Report(Text: PAnsiChar); stdcall;
begin
  if Text <> nil then Inc(Reported);
end;

procedure SparseLU;
const
  Ap: array[0..5] of Int32 = (0, 2, 5, 9, 10, 12);
  Ai: array[0..11] of Int32 = (0, 1, 0, 2, 4, 1, 2, 3, 4, 2, 1, 4);
  Ax: array[0..11] of Single = (2, 3, 3, -1, 4, 4, -3, 1, 2, 2, 6, 1);
  B: array[0..4] of Single = (8, 45, -3, 3, 19);
var
  Control: array[0..19] of Single;
  X: array[0..4] of Single;
  Symbolic, Numeric: Pointer;
  Status, I: Int32;
begin
  set_printf_callback_32f(@Report);
  umfpack_di_defaults(@Control);
  Control[UMFPACK_PRL] := 2;
  umfpack_di_symbolic(5, 5, @Ap, @Ai, @Ax, Symbolic, @Control, nil);
  umfpack_di_numeric(@Ap, @Ai, @Ax, Symbolic, Numeric, @Control, nil);
  Status := umfpack_di_solve(UMFPACK_A, @Ap, @Ai, @Ax, @X, @B, Numeric, @Control, nil);
  umfpack_di_report_status(@Control, Status);
  umfpack_di_free_symbolic(Symbolic);
  umfpack_di_free_numeric(Numeric);
  set_printf_callback_32f(nil);
  for I := 0 to 4 do Expect('umfpack_di_solve', X[I], I + 1, 1e-5);
  Expect('report through the callback', Ord(Reported > 0), 1, 0);
end;

procedure ConjugateGradients;
const
  N = 10;
var
  X, B: array[0..N - 1] of Double;
  Tmp: array[0..4 * N - 1] of Double;
  Ipar: array[0..127] of Int32;
  Dpar: array[0..127] of Double;
  Request, Iterations, I: Int32;
begin
  { -1 2 -1, with 1, 1, ... for a solution. }
  for I := 0 to N - 1 do
  begin
    X[I] := 0;
    B[I] := Ord((I = 0) or (I = N - 1));
  end;
  DCG_INIT(N, @X, @B, Request, @Ipar, @Dpar, @Tmp);
  Ipar[QUORIN_RCI_IPAR_RESIDUAL_TEST - 1] := 1;
  Ipar[QUORIN_RCI_IPAR_HOST_TEST - 1] := 0;
  Dpar[QUORIN_RCI_DPAR_RELATIVE_TOLERANCE - 1] := 1e-10;
  repeat
    DCG(N, @X, @B, Request, @Ipar, @Dpar, @Tmp);
    if Request = QUORIN_RCI_MULTIPLY then
      for I := 0 to N - 1 do
      begin
        Tmp[N + I] := 2 * Tmp[I];
        if I > 0 then Tmp[N + I] := Tmp[N + I] - Tmp[I - 1];
        if I < N - 1 then Tmp[N + I] := Tmp[N + I] - Tmp[I + 1];
      end;
  until Request <> QUORIN_RCI_MULTIPLY;
  Iterations := 0;
  DCG_GET(N, @X, @B, @Request, @Ipar, @Dpar, @Tmp, Iterations);
  Expect('DCG, request', Request, 0, 0);
  for I := 0 to N - 1 do Expect('DCG', X[I], 1, 1e-8);
end;

{ The same system by the direct solver: its upper triangle by rows, from 1. }
procedure DirectSolution;
const
  N = 10;
var
  Starts: array[0..N] of Int32;
  Columns: array[0..2 * N - 1] of Int32;
  Values: array[0..2 * N - 1] of Double;
  X, B: array[0..N - 1] of Double;
  Handle: array[0..63] of Pointer;
  Iparm: array[0..63] of Int32;
  Kind, Order, One, Silent, Error, I: Int32;
begin
  for I := 0 to N - 1 do
  begin
    Starts[I] := 2 * I + 1;
    Columns[2 * I] := I + 1;
    Values[2 * I] := 2;
    Columns[2 * I + 1] := I + 2;
    Values[2 * I + 1] := -1;
    B[I] := Ord((I = 0) or (I = N - 1));
  end;
  Starts[N] := 2 * N;
  Order := N;
  One := 1;
  Silent := QUORIN_PARDISO_SILENT;
  Kind := QUORIN_PARDISO_REAL_POSITIVE_DEFINITE;
  sPARDISOINIT(@Handle, Kind, @Iparm);
  PARDISO(@Handle, @One, @One, @Kind, QUORIN_PARDISO_ANALYSE_FACTORIZE_SOLVE, @Order, @Values, @Starts, @Columns, nil, @One, @Iparm,
    @Silent, @B, @X, Error);
  Expect('PARDISO, error', Error, QUORIN_PARDISO_DONE, 0);
  for I := 0 to N - 1 do Expect('PARDISO', X[I], 1, 1e-12);
  PARDISO(@Handle, nil, nil, nil, QUORIN_PARDISO_FREE_ALL, nil, nil, nil, nil, nil, nil, nil, nil, nil, nil, Error);
  Expect('PARDISO, freed', Error, QUORIN_PARDISO_DONE, 0);
end;

const
  Points = 8;

{ a exp(-b t) - y at t = 0, 1, ..., y being 3 exp(-t/2). }
procedure Decay(M, N: PInt32; X, F: PSingle); cdecl;
var
  I: Integer;
begin
  for I := 0 to M^ - 1 do F[I] := X[0] * Exp(-X[1] * I) - 3 * Exp(-0.5 * I);
end;

procedure LeastSquares;
var
  Run: Pointer;
  X: array[0..1] of Single = (1, 1);
  F: array[0..Points - 1] of Single;
  J: array[0..2 * Points - 1] of Single;
  Eps: array[0..5] of Single = (1e-6, 1e-6, 1e-6, 1e-6, 1e-6, 0);
  Step: Single;
  Rows, Columns, Request: Int32;
begin
  Rows := Points;
  Columns := 2;
  Step := 1e-3;
  Run := nil;
  strnlsp_init(Run, Columns, Rows, @X, @Eps, 100, 100, 0);
  Decay(@Rows, @Columns, @X, @F);
  sjacobi(@Decay, Columns, Rows, @J, @X, @Step);
  Request := 0;
  repeat
    strnlsp_solve(Run, @F, @J, Request);
    if Request = QUORIN_TRUST_REGION_RESIDUAL then Decay(@Rows, @Columns, @X, @F);
    if Request = QUORIN_TRUST_REGION_JACOBIAN then sjacobi(@Decay, Columns, Rows, @J, @X, @Step);
  until Request < 0;
  strnlsp_delete(Run);
  Expect('strnlsp, a', X[0], 3, 1e-3);
  Expect('strnlsp, b', X[1], 0.5, 1e-3);
end;

begin
  DotProductInsideAnArray;
  SingularValues;
  SparseLU;
  ConjugateGradients;
  DirectSolution;
  LeastSquares;
  WriteLn('the tour is right: ', Steps, ' steps');
end.
