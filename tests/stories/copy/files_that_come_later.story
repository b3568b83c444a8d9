# A file that has come since the window was open last is in the list.
drive a floppy
film 1 Title="Solaris"
start
click mnuCopy
see File1.Items "Recpra.Dat"
pick File1 "Recpra.Dat"
pick Drive1 "a:"
box question "Reelora Prima" ANY Yes
file Backup.dat "x"
click mnuCopy
see File1.Items "Backup.dat" "Recpra.Dat"
see File1.ListIndex 1
