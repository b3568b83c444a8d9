# Find Last Record out of a view closes its key file, so that a report can open it.
film 1 Title="Alien" Format="D"
film 2 Title="Brazil" Format="D"
sorted
start
click mnuByTitle
click mnuLast

click mnuShort
box question "Reelora Prima Print Program" ANY Yes
printed 1
beep
box warning "Reelora Prima Print Program" ANY OK
see state CurrentRecNo 1
