Begin A
Begin B b' c
End
End