# The opening window behind the record screen still ends the program when it is closed.
start opener
click cmdStart
see frmPage1.Visible yes
close frmOpener
end
