# Find By File No. out of a view closes its key file, so that a report can open it.
film 1 Title="Alien" Format="D"
film 2 Title="Brazil" Format="D"
sorted
start
click mnuByTitle
click mnuFile
input "Reelora Prima" "Enter File No To Search:" "1"
click mnuShort
box question "Reelora Prima Print Program" ANY Yes
printed 1
beep
box warning "Reelora Prima Print Program" ANY OK
see state CurrentRecNo 1
