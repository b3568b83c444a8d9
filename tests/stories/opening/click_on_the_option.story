# A click on the option selects it and does no more; Alt C selects it too.
remove Fo
file Fo1 "PERHAPS\r\n"
start opener
click cmdStart
see option1.Value no
key Alt+C
see option1.Value yes
see missing Fo
see frmInfo.Visible yes
