# While the window is open the master file is closed.
drive a floppy
film 1 Title="Solaris"
film 2 Title="Stalker"
start
click mnuCopy
click cmdNext
stop "Bad file name or number"
