{ Three equations by LU factors, a sum of squares inside an array, and a report that a procedure of the host receives. }
program equations;

{$IFDEF FPC}{$MODE DELPHI}{$ENDIF}
{$APPTYPE CONSOLE}

uses
  QuorinLapacks;

{ The text output alone is stdcall; other callbacks are cdecl. }
procedure Print(Text: PAnsiChar); stdcall;
begin
  Write(AnsiString(Text));
end;

var
  { 2x + y + z = 7, 4x + 3y + 3z = 19, 8x + 7y + 9z = 49; the matrix by columns. }
  A: array[0..8] of Single = (2, 4, 8, 1, 3, 7, 1, 3, 9);
  X: array[0..2] of Single = (7, 19, 49);
  Pivots: array[0..2] of Int32;
  Control: array[0..UMFPACK_CONTROL - 1] of Single;
  Squares: Single;
  Info: Int32;

begin
  sgetrf(3, 3, @A, 3, @Pivots, Info);
  if Info <> 0 then
  begin
    if Info > 0 then WriteLn('the matrix is singular') else WriteLn('an argument is wrong');
    Halt(1);
  end;
  sgetrs('N', 3, 1, @A, 3, @Pivots, @X, 3, Info);

  { y^2 + z^2: the index form begins at element 1 of X. }
  Squares := sdot_Idx(2, @X, 1, 1, @X, 1, 1);
  WriteLn('x = ', X[0]:0:4, ', y = ', X[1]:0:4, ', z = ', X[2]:0:4, ', y^2 + z^2 = ', Squares:0:4);

  umfpack_di_defaults(@Control);
  Control[UMFPACK_PRL] := 4; { all entries }
  set_printf_callback_32f(@Print);
  umfpack_di_report_vector(3, @X, @Control);
  set_printf_callback_32f(nil);
  if Abs(X[0] - 1) + Abs(X[1] - 2) + Abs(X[2] - 3) + Abs(Squares - 13) > 1e-4 then Halt(1);
end.
