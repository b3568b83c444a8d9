# The four stored colours reach their groups; the price box keeps its white background.
file BGColor "255\r\n"
file txtBGColor "65280\r\n"
file txtForColor "1\r\n"
file tagForColor "2\r\n"
start
see frmPage1.BackColor 255
see lblTitle.BackColor 255
see lblTitle.ForeColor 2
see lblSave.ForeColor 2
see optNotesoff.BackColor 255
see optNotesoff.ForeColor 2
see txtTitle.BackColor 65280
see txtTitle.ForeColor 1
see txtCost.BackColor 16777215
see txtCost.ForeColor 1
see Text3(19).BackColor 65280
see Text1(0).ForeColor 1
see lblEnter.ForeColor 2
see lblEnter.BackColor 16711680
