# The flag of the quick start is read last, when the first film is on the screen.
film 1 Title="Alien"
remove Fo1
start
stop "File not found"
see frmPage1.Visible yes
see txtTitle "Alien"
see focus cmdSave
