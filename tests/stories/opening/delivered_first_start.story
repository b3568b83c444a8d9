# The delivered set: Fo1 with YES, no Fo.
remove Fo
file Fo1 "YES\r\n"
see same Fo1 ../../../delivered/Fo1
start opener
click cmdStart
see frmInfo.Visible yes
click Command1
click Check1
click cmdContinue
see frmPage1.Visible yes
see file Fo1 "NO\r\n"
close frmPage1
end
