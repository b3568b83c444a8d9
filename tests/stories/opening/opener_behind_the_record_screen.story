# The opening window behind the record screen is out of reach until that has gone; then it is there again and ends the
# program.
film 1 Title="Room 49" Format="D"
sorted
start opener
click cmdStart
see frmPage1.Visible yes
see frmOpener.Visible yes
close frmOpener
click cmdExit
move cmdStart
see frmOpener.Visible yes
click mnuByTitle
see state EditMode 6
close frmPage1
see frmPage1.Visible no
see frmOpener.Visible yes
click cmdExit
end
