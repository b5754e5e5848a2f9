Begin Form frmOrder
   Caption = "Zamówienie"
   ' a comment
   Begin KorDaoUC.KorNumber numPrice
      BackColor = &H80000005&
      Font = Font("DejaVu Sans", 8.25, Bold, Italic)
      Left = 1200
      MaskPicture = "#,##0.00"
      MaxLength = 7
      MaxLength = 7
      MaxValue = 1000!
      Value = 1234567.89#
   End
End
