' The filter above the list of orders. An empty field leaves none out.
Begin Form frmFilter
   Width = 14580
   Height = 1935
   Begin Frame fraFilter
      Caption = "Filtr"
      Width = 14580
      Height = 1935
      Begin Label lblFrom
         Caption = "&Data od:"
         Alignment = 1%
         Left = 150
         Top = 390
         Width = 1245
         Height = 360
         TabIndex = 1
      End
      Begin KorDaoUC.KorDate datFrom
         Left = 1500
         Top = 390
         Width = 1650
         Height = 360
         TabIndex = 2
         ToolTipText = "Pierwszy dzień zamówień; F4 otwiera kalendarz"
      End
      Begin Label lblTo
         Caption = "do:"
         Alignment = 1%
         Left = 3195
         Top = 390
         Width = 420
         Height = 360
         TabIndex = 3
      End
      Begin KorDaoUC.KorDate datTo
         Left = 3705
         Top = 390
         Width = 1650
         Height = 360
         TabIndex = 4
         ToolTipText = "Ostatni dzień zamówień; F4 otwiera kalendarz"
      End
      Begin Label lblLeast
         Caption = "&Wartość od:"
         Alignment = 1%
         Left = 150
         Top = 870
         Width = 1245
         Height = 360
         TabIndex = 5
      End
      Begin KorDaoUC.KorNumber numLeast
         Left = 1500
         Top = 870
         Width = 1650
         Height = 360
         TabIndex = 6
         MaxLength = 12
         ToolTipText = "Najmniejsza wartość zamówienia"
      End
      Begin Label lblMost
         Caption = "do:"
         Alignment = 1%
         Left = 3195
         Top = 870
         Width = 420
         Height = 360
         TabIndex = 7
      End
      Begin KorDaoUC.KorNumber numMost
         Left = 3705
         Top = 870
         Width = 1650
         Height = 360
         TabIndex = 8
         MaxLength = 12
         ToolTipText = "Największa wartość zamówienia"
      End
      Begin Label lblUnit
         Caption = "zł"
         Left = 5430
         Top = 870
         Width = 300
         Height = 360
      End
      Begin Label lblText
         Caption = "&Tekst:"
         Alignment = 1%
         Left = 150
         Top = 1350
         Width = 1245
         Height = 360
         TabIndex = 9
      End
      Begin TextBox txtText
         Left = 1500
         Top = 1350
         Width = 3855
         Height = 360
         TabIndex = 10
         MaxLength = 100
      End
      Begin Label lblGroup
         Caption = "&Grupa:"
         Alignment = 1%
         Left = 5730
         Top = 390
         Width = 870
         Height = 360
         TabIndex = 11
      End
      Begin KorDaoUC.KorCombo cmbGroup
         Left = 6705
         Top = 390
         Width = 3600
         Height = 360
         TabIndex = 12
         SQL = "SELECT id, name FROM customer_groups ORDER BY name"
         Slownik = "customer_groups"
         CanBeNull = True
         NullString = "(wszystkie)"
         ToolTipText = "Grupa klientów"
      End
      Begin Label lblCustomer
         Caption = "&Klient:"
         Alignment = 1%
         Left = 5730
         Top = 870
         Width = 870
         Height = 360
         TabIndex = 13
      End
      Begin KorDaoUC.KorCombo cmbCustomer
         Left = 6705
         Top = 870
         Width = 3600
         Height = 360
         TabIndex = 14
         SQL = "SELECT id, name FROM customers ORDER BY sort_name"
         Slownik = "customers"
         CanBeNull = True
         NullString = "(wszyscy)"
         ToolTipText = "Klient; lista podaje tylko klientów wybranej grupy"
      End
      Begin Label lblTerms
         Caption = "&Płatność:"
         Alignment = 1%
         Left = 10380
         Top = 390
         Width = 1005
         Height = 360
         TabIndex = 15
      End
      Begin KorDaoUC.KorListCheck lstTerms
         Left = 11490
         Top = 390
         Width = 2940
         Height = 1320
         TabIndex = 16
         HelpText = "Tylko zaznaczone warunki płatności; bez zaznaczenia wszystkie"
      End
      Begin CommandButton cmdShow
         Caption = "P&okaż"
         Default = True
         Left = 6705
         Top = 1320
         Width = 1740
         Height = 420
         TabIndex = 17
         ToolTipText = "Pokaż zamówienia (Enter)"
      End
      Begin CommandButton cmdClear
         Caption = "Wy&czyść"
         Left = 8565
         Top = 1320
         Width = 1740
         Height = 420
         TabIndex = 18
         ToolTipText = "Wyczyść filtr i pokaż wszystkie zamówienia (Ctrl+R)"
      End
   End
End
