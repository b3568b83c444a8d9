# The dialog's own colour is black at first, and Cancel applies and stores it.
start
click mnuBGColors
colour cancel
see frmPage1.BackColor 0
see lblTitle.BackColor 0
see file BGColor "0\r\n"
