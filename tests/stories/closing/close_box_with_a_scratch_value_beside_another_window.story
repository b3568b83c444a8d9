# With a scratch value the close box ends nothing: the program goes on while another window is up.
file Fo1 "YES\r\n"
film 1 Title="Room 49" Format="D"
sorted
start
click mnuByTitle
see state EditMode 6
close frmPage1
see frmPage1.Visible no
see frmQuickStart.Visible yes
close frmQuickStart
end
