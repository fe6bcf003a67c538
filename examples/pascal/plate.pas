{ The sparse direct solver: the sag of a loaded membrane, a symmetric positive definite system. }
program plate;

{$IFDEF FPC}{$MODE DELPHI}{$ENDIF}
{$APPTYPE CONSOLE}

uses
  QuorinLapacks;

const
  Side = 40;
  Points = Side * Side;

var
  Starts: array[0..Points] of Int32;
  Columns: array[0..3 * Points - 1] of Int32;
  Values: array[0..3 * Points - 1] of Double;
  Load, Sag: array[0..Points - 1] of Double;
  Handle: array[0..QUORIN_PARDISO_HANDLE_WORDS - 1] of Pointer;
  Parameters: array[0..QUORIN_PARDISO_PARAMETERS - 1] of Int32;
  Count: Integer = 0;

procedure Entry(IsInside: Boolean; Column: Int32; Value: Double);
begin
  if not IsInside then Exit;
  Columns[Count] := Column;
  Values[Count] := Value;
  Inc(Count);
end;

var
  N, Kind, One, Silent, Error, I: Int32;
  Deepest: Double = 0;

begin
  { Of five-point differences the upper triangle, by rows, counted from 1. }
  for I := 1 to Points do
  begin
    Starts[I - 1] := Count + 1;
    Entry(True, I, 4);
    Entry(I mod Side <> 0, I + 1, -1);
    Entry(I + Side <= Points, I + Side, -1);
    Load[I - 1] := 1 / ((Side + 1) * (Side + 1));
  end;
  Starts[Points] := Count + 1;

  N := Points;
  One := 1;
  Silent := QUORIN_PARDISO_SILENT;
  Kind := QUORIN_PARDISO_REAL_POSITIVE_DEFINITE;
  sPARDISOINIT(@Handle, Kind, @Parameters);
  PARDISO(@Handle, @One, @One, @Kind, QUORIN_PARDISO_ANALYSE_FACTORIZE_SOLVE, @N, @Values, @Starts, @Columns, nil, @One,
    @Parameters, @Silent, @Load, @Sag, Error);
  if Error <> QUORIN_PARDISO_DONE then Halt(1);
  PARDISO(@Handle, nil, nil, nil, QUORIN_PARDISO_FREE_ALL, nil, nil, nil, nil, nil, nil, nil, nil, nil, nil, Error);

  for I := 0 to Points - 1 do
    if Sag[I] > Deepest then Deepest := Sag[I];
  WriteLn('deepest point: ', Deepest:0:5);
  if Abs(Deepest - 0.07367) > 4e-4 then Halt(1); { that of the continuous membrane }
end.
