Begin F "lbl(3)"
A = Empty
B = Null
C = Missing
D = True
E = False
F = 255b
G = -32768%
H = 2147483647
I = &HC0FFFF&
J = 0.1!
K = 1e-06#
LNull = -922337203685477.5808@
M = #0026-11-21#
N = #2026-11-21 12:30:00.250#
O = "12"" \\ \r\n\t \u0000 \uD83D\uDE00 ó"
P = Font("Sa-s,1n9,,5,600,0,0,0,0,0,0,0,0,0,0,1")
"End" = 1
"" = 2
End
