# The close box of the features window ends the program, although the record screen is behind it.
remove Fo
start opener
click cmdStart
see frmPage1.Visible yes
close frmInfo
end
