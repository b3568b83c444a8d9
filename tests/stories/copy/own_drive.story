# The drive of the program's folder: the file itself is what would be replaced, and stays as it is.
drive a floppy
film 1 Title="Solaris"
start
click mnuCopy
pick File1 "Recpra.Dat"
pick Drive1 "c:"
box question "Reelora Prima" ANY Yes
see length Recpra.Dat 649
see film 1 Title "Solaris"
see frmCopy.Visible no
see txtTitle "Solaris"
