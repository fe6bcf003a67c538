Attribute VB_Name = "Equations"
' Three equations by LU factors, a sum of squares inside an array, and a report that a procedure of the host receives.
Option Explicit

Private Declare Function lstrlenA Lib "kernel32" (ByVal Text As Long) As Long
Private Declare Sub CopyMemory Lib "kernel32" Alias "RtlMoveMemory" (ByRef Target As Any, ByVal Source As Long, ByVal Bytes As Long)

' The text output is stdcall, as AddressOf gives it. It gets the address of a text that ends with a zero.
Public Sub PrintText(ByVal Text As Long)
    Dim Bytes() As Byte
    If lstrlenA(Text) = 0 Then Exit Sub
    ReDim Bytes(lstrlenA(Text) - 1)
    CopyMemory Bytes(0), Text, lstrlenA(Text)
    Debug.Print StrConv(Bytes, vbUnicode);
End Sub

Public Sub Main()
    ' 2x + y + z = 7, 4x + 3y + 3z = 19, 8x + 7y + 9z = 49; VB keeps arrays by columns.
    Dim A(2, 2) As Single, X(2) As Single, Control(UMFPACK_CONTROL - 1) As Single
    Dim Pivots(2) As Long, Info As Long, Squares As Single
    A(0, 0) = 2: A(0, 1) = 1: A(0, 2) = 1: X(0) = 7
    A(1, 0) = 4: A(1, 1) = 3: A(1, 2) = 3: X(1) = 19
    A(2, 0) = 8: A(2, 1) = 7: A(2, 2) = 9: X(2) = 49

    ' An array is passed by its first element.
    sgetrf 3, 3, A(0, 0), 3, Pivots(0), Info
    If Info > 0 Then Err.Raise vbObjectError + 1, , "The matrix is singular."
    If Info < 0 Then Err.Raise vbObjectError + 2, , "An argument is wrong."
    sgetrs "N", 3, 1, A(0, 0), 3, Pivots(0), X(0), 3, Info

    ' y^2 + z^2: the index form begins at element 1 of X.
    Squares = sdot_Idx(2, X(0), 1, 1, X(0), 1, 1)
    Debug.Print "x ="; X(0); ", y ="; X(1); ", z ="; X(2); ", y^2 + z^2 ="; Squares

    umfpack_di_defaults Control(0)
    Control(UMFPACK_PRL) = 4 ' all entries
    set_printf_callback_32f AddressOf PrintText
    umfpack_di_report_vector 3, X(0), Control(0)
    set_printf_callback_32f 0
End Sub
