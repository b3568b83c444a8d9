# Default Colors leaves the dialog at the colour that it set last, that of the tags.
start
click mnudefault
click mnuBGColors
colour cancel
see frmPage1.BackColor 65535
see file BGColor "65535\r\n"
restart
click mnuTxtColor
colour cancel
see txtTitle.ForeColor 0
