{ Bessel functions: the tones of a drum are the zeros of J_m, here by bisection. }
program drum;

{$IFDEF FPC}{$MODE DELPHI}{$ENDIF}
{$APPTYPE CONSOLE}

uses
  QuorinLapacks;

function J(Order: Integer; X: Double): Double;
var
  Z, Value: TQuorinDoubleComplex;
  Underflows, Error: Int32;
begin
  Z.re := X;
  Z.im := 0;
  CBESJ(Z, Order, 1, 1, @Value, Underflows, Error);
  if Error <> QUORIN_AMOS_OK then Halt(1);
  J := Value.re;
end;

const
  Known: array[0..2] of Double = (2.404825557695773, 3.831705970207512, 5.135622301840683);

var
  Order, Step: Integer;
  Low, High, Middle: Double;

begin
  for Order := 0 to 2 do
  begin
    Low := Order + 1.8; { around the first zero }
    High := Order + 3.5;
    for Step := 1 to 60 do
    begin
      Middle := (Low + High) / 2;
      if (J(Order, Low) < 0) = (J(Order, Middle) < 0) then Low := Middle else High := Middle;
    end;
    WriteLn('order ', Order, ': ', Low:0:12, ', a tone ', Low / Known[0]:0:4, ' times the lowest');
    if Abs(Low - Known[Order]) > 1e-13 * Low then Halt(1);
  end;
end.
