# The option and the button of the features have no topic.
file Fo "YES\r\n"
file Fo1 "PERHAPS\r\n"
start opener
click cmdStart
see frmInfo.HelpContext 0
key Alt+C
see option1.Value yes
key Tab
see frmInfo.HelpContext 0
key Tab
see frmInfo.HelpContext 0
