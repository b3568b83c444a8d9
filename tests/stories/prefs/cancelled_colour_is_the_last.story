# Cancel applies the colour that was taken last, in whatever group.
start
click mnuMessColor
colour 12345
click mnuTxtBoxColor
colour cancel
see txtTitle.BackColor 12345
see txtCost.BackColor 12345
see file txtBGColor "12345\r\n"
see file tagForColor "12345\r\n"
