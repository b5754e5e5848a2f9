Begin Form frmOrder
End
