{ Filter design: a low pass of 31 taps, and its response. }
program lowpass;

{$IFDEF FPC}{$MODE DELPHI}{$ENDIF}
{$APPTYPE CONSOLE}

uses
  QuorinLapacks;

const
  Taps = 31;
  { Passes up to a fifth of the sampling rate, stops from a quarter on; errors count ten times as much there. }
  Edges: array[0..3] of Double = (0, 0.2, 0.25, 0.5);
  Wanted: array[0..1] of Double = (1, 0);
  Weights: array[0..1] of Double = (1, 10);
  Multiband = 1;

var
  H: array[0..Taps - 1] of Double;

{ Of a symmetric filter, without its delay. }
function Response(Frequency: Double): Double;
var
  K: Integer;
begin
  Result := H[Taps div 2];
  for K := 1 to Taps div 2 do Result := Result + 2 * H[Taps div 2 - K] * Cos(2 * Pi * Frequency * K);
end;

var
  Worst: array[0..1] of Double = (0, 0);
  Band, I: Integer;
  Error: Int32;
  Deviation: Double;

begin
  REMEZ(@H, Taps, 2, @Edges, @Wanted, @Weights, Multiband, 0, 0, Error);
  if Error <> QUORIN_SIGNAL_CONVERGED then Halt(1);
  for Band := 0 to 1 do
    for I := 0 to 2000 do
    begin
      Deviation := Abs(Response(Edges[2 * Band] + (Edges[2 * Band + 1] - Edges[2 * Band]) * I / 2000) - Wanted[Band]);
      if Deviation > Worst[Band] then Worst[Band] := Deviation;
    end;
  WriteLn('ripple ', Worst[0]:0:5, ' in the pass band, ', Worst[1]:0:5, ' in the stop band');
  { The best filter has the same weighted error in both bands. }
  if (Abs(Worst[0] - 10 * Worst[1]) > 1e-3 * Worst[0]) or (Worst[1] > 0.02) then Halt(1);
end.
