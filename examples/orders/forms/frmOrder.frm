' The form of the order desk. Places are twips: 15 to a pixel at 96 dots per inch.
Begin Form frmOrder
   Caption = "Zamówienia"
   Width = 14940
   Height = 8820
   Begin Frame fraOrder
      Caption = "Zamówienie"
      Left = 180
      Top = 120
      Width = 11040
      Height = 1995
      Begin Label lblNumber
         Caption = "Numer:"
         Alignment = 1%
         Left = 150
         Top = 420
         Width = 1350
         Height = 360
      End
      Begin TextBox txtNumber
         Left = 1620
         Top = 420
         Width = 2250
         Height = 360
         Locked = True
      End
      Begin Label lblDate
         Caption = "&Data:"
         Alignment = 1%
         Left = 4050
         Top = 420
         Width = 1125
         Height = 360
         TabIndex = 1
      End
      Begin KorDaoUC.KorDate datOrder
         Left = 5295
         Top = 420
         Width = 1650
         Height = 360
         TabIndex = 2
         ToolTipText = "Dzień zamówienia; F4 otwiera kalendarz"
      End
      Begin Label lblDelivery
         Caption = "D&ostawa:"
         Alignment = 1%
         Left = 7035
         Top = 420
         Width = 1800
         Height = 360
         TabIndex = 3
      End
      Begin KorDaoUC.KorDate datDelivery
         Left = 8955
         Top = 420
         Width = 1875
         Height = 360
         TabIndex = 4
         ToolTipText = "Umówiony dzień dostawy; puste pole: nie umówiono"
      End
      Begin Label lblCustomer
         Caption = "&Klient:"
         Alignment = 1%
         Left = 150
         Top = 930
         Width = 1350
         Height = 360
         TabIndex = 5
      End
      Begin KorDaoUC.KorCombo cmbCustomer
         Left = 1620
         Top = 930
         Width = 9210
         Height = 360
         TabIndex = 6
         SQL = "SELECT id, name FROM customers ORDER BY sort_name"
         Slownik = "customers"
         CanBeNull = True
         NullString = "(bez klienta)"
         ToolTipText = "Klient, dla którego jest zamówienie; F5 wczytuje listę na nowo"
      End
      Begin Label lblAddress
         Caption = "Adres:"
         Alignment = 1%
         Left = 150
         Top = 1380
         Width = 1350
         Height = 360
         TabIndex = 7
      End
      Begin KorDaoUC.KorClick clkAddress
         Left = 1620
         Top = 1380
         Width = 9210
         Height = 360
         TabIndex = 8
         LockedText = True
      End
   End
   Begin Frame fraTerms
      Caption = "Warunki"
      Left = 180
      Top = 2235
      Width = 11040
      Height = 1560
      Begin Label lblTerms
         Caption = "&Płatność:"
         Alignment = 1%
         Left = 150
         Top = 420
         Width = 1350
         Height = 360
         TabIndex = 9
      End
      Begin KorDaoUC.KorCombo cmbTerms
         Left = 1620
         Top = 420
         Width = 2250
         Height = 360
         TabIndex = 10
         ToolTipText = "Sposób i termin zapłaty"
      End
      Begin Label lblDiscount
         Caption = "&Rabat:"
         Alignment = 1%
         Left = 4050
         Top = 420
         Width = 1125
         Height = 360
         TabIndex = 11
      End
      Begin KorDaoUC.KorNumber numDiscount
         Left = 5295
         Top = 420
         Width = 1755
         Height = 360
         TabIndex = 12
         MaxLength = 6
         MaskPicture = "0.00"
         MaxValue = 100!
         CheckRange = True
         ToolTipText = "Rabat od 0 do 100 procent"
      End
      Begin Label lblPercent
         Caption = "%"
         Left = 7140
         Top = 420
         Width = 315
         Height = 360
      End
      Begin Label lblPriority
         Caption = "Priory&tet:"
         Alignment = 1%
         Left = 7470
         Top = 420
         Width = 1275
         Height = 360
         TabIndex = 13
      End
      Begin KorDaoUC.KorUpDown spnPriority
         Left = 8865
         Top = 420
         Width = 900
         Height = 360
         TabIndex = 14
         MaxLength = 1
      End
      Begin Label lblTotal
         Caption = "&Wartość:"
         Alignment = 1%
         Left = 150
         Top = 930
         Width = 1350
         Height = 360
         TabIndex = 15
      End
      Begin KorDaoUC.KorNumber numTotal
         Left = 1620
         Top = 930
         Width = 1755
         Height = 360
         TabIndex = 16
         MaxLength = 12
         ToolTipText = "Wartość brutto po rabacie"
      End
      Begin Label lblTotalUnit
         Caption = "zł"
         Left = 3465
         Top = 930
         Width = 450
         Height = 360
      End
      Begin Label lblAdvance
         Caption = "&Zaliczka:"
         Alignment = 1%
         Left = 4050
         Top = 930
         Width = 1125
         Height = 360
         TabIndex = 17
      End
      Begin KorDaoUC.KorNumber numAdvance
         Left = 5295
         Top = 930
         Width = 1755
         Height = 360
         TabIndex = 18
         MaxLength = 12
         ToolTipText = "Kwota wpłacona z góry"
      End
      Begin Label lblAdvanceUnit
         Caption = "zł"
         Left = 7140
         Top = 930
         Width = 315
         Height = 360
      End
      Begin Label lblDue
         Caption = "Do zapłaty:"
         Alignment = 1%
         Left = 7470
         Top = 930
         Width = 1275
         Height = 360
      End
      Begin KorDaoUC.KorNumber numDue
         BackColor = &H8000000F&
         Left = 8865
         Top = 930
         Width = 1755
         Height = 360
         Locked = True
      End
      Begin Label lblDueUnit
         Caption = "zł"
         Left = 10710
         Top = 930
         Width = 225
         Height = 360
      End
   End
   Begin Frame fraGroups
      Caption = "Grupy klientów"
      Left = 11340
      Top = 120
      Width = 3420
      Height = 1995
      Begin KorDaoUC.KorListCheck lstGroups
         Left = 150
         Top = 420
         Width = 3120
         Height = 1380
         TabIndex = 32
         HelpText = "Lista klientów podaje tylko zaznaczone grupy; bez zaznaczenia wszystkie"
         SQL = "SELECT id, name FROM customer_groups ORDER BY name"
         Slownik = "customer_groups"
         Separator = ","
      End
   End
   Begin Frame fraOrders
      Caption = "Zamówienia klienta"
      Left = 11340
      Top = 2235
      Width = 3420
      Height = 2085
      Begin KorDaoUC.KorList lstOrders
         Left = 150
         Top = 420
         Width = 3120
         Height = 1470
         TabIndex = 33
      End
   End
   Begin Label lblRemarks
      Caption = "Uwa&gi:"
      Alignment = 1%
      Left = 330
      Top = 3960
      Width = 1350
      Height = 360
      TabIndex = 19
   End
   Begin KorDaoUC.KorMultiText txtRemarks
      Left = 1800
      Top = 3960
      Width = 5145
      Height = 360
      TabIndex = 20
      MaxLength = 200
      OpenLines = 6%
   End
   Begin Label lblColor
      Caption = "Et&ykieta:"
      Alignment = 1%
      Left = 7035
      Top = 3960
      Width = 1275
      Height = 360
      TabIndex = 21
   End
   Begin KorDaoUC.KorColor clrLabel
      Left = 8430
      Top = 3960
      Width = 2580
      Height = 360
      TabIndex = 22
      ToolTipText = "Kolor etykiety; (domyślny): bez etykiety"
   End
   Begin Frame fraLines
      Caption = "Pozyc&je"
      Left = 180
      Top = 4440
      Width = 14580
      Height = 3600
      Begin KorDaoUC.KorGrid grdLines
         BackColor = &H80000005&
         ForeColor = &H80000008&
         BorderStyle = 1%
         RowHeightMin = 315
         Left = 150
         Top = 360
         Width = 14280
         Height = 2640
         TabIndex = 23
      End
      Begin Label lblLinesQuantity
         Caption = "Ilość razem:"
         Alignment = 1%
         Left = 6150
         Top = 3105
         Width = 1650
         Height = 360
      End
      Begin KorDaoUC.KorNumber numLinesQuantity
         BackColor = &H8000000F&
         Left = 7920
         Top = 3105
         Width = 1500
         Height = 360
         Locked = True
      End
      Begin Label lblLinesNet
         Caption = "Wartość netto:"
         Alignment = 1%
         Left = 9900
         Top = 3105
         Width = 2025
         Height = 360
      End
      Begin KorDaoUC.KorNumber numLinesNet
         BackColor = &H8000000F&
         Left = 12045
         Top = 3105
         Width = 1950
         Height = 360
         Locked = True
      End
      Begin Label lblLinesNetUnit
         Caption = "zł"
         Left = 14085
         Top = 3105
         Width = 345
         Height = 360
      End
   End
   Begin CommandButton cmdFirst
      Left = 180
      Top = 8160
      Width = 600
      Height = 480
      TabIndex = 24
      ToolTipText = "Pierwsze zamówienie (Alt+Home)"
   End
   Begin CommandButton cmdPrevious
      Left = 810
      Top = 8160
      Width = 600
      Height = 480
      TabIndex = 25
      ToolTipText = "Poprzednie zamówienie (Ctrl+PgUp)"
   End
   Begin Label lblPosition
      Alignment = 2%
      Left = 1440
      Top = 8160
      Width = 1800
      Height = 480
   End
   Begin CommandButton cmdNext
      Left = 3270
      Top = 8160
      Width = 600
      Height = 480
      TabIndex = 26
      ToolTipText = "Następne zamówienie (Ctrl+PgDn)"
   End
   Begin CommandButton cmdLast
      Left = 3900
      Top = 8160
      Width = 600
      Height = 480
      TabIndex = 27
      ToolTipText = "Ostatnie zamówienie (Alt+End)"
   End
   Begin CommandButton cmdFind
      Caption = "Szuk&aj..."
      Left = 5205
      Top = 8160
      Width = 1410
      Height = 480
      TabIndex = 28
      ToolTipText = "Szukaj po numerze lub kliencie (Ctrl+F)"
   End
   Begin CommandButton cmdNew
      Caption = "&Nowe"
      Left = 6735
      Top = 8160
      Width = 1410
      Height = 480
      TabIndex = 29
      ToolTipText = "Nowe zamówienie (Ctrl+N)"
   End
   Begin CommandButton cmdSave
      Caption = "Zapi&sz"
      Left = 8265
      Top = 8160
      Width = 1410
      Height = 480
      TabIndex = 30
      ToolTipText = "Zapisz zamówienie (Ctrl+S)"
   End
   Begin CommandButton cmdDelete
      Caption = "&Usuń"
      Left = 9795
      Top = 8160
      Width = 1410
      Height = 480
      TabIndex = 31
      ToolTipText = "Usuń zamówienie (Ctrl+D)"
   End
End
