# The pointer passing over the option turns the features off for good.
remove Fo
file Fo1 "PERHAPS\r\n"
start opener
click cmdStart
see missing Fo
move Command1
see missing Fo
move option1
see file Fo "NO\r\n"
see frmInfo.Visible yes
see frmQuickStart.Visible no
see frmPage1.Visible no
