# Nothing is copied to the drive of the program's folder: not even its disk is asked for.
drive c none
film 1 Title="Solaris"
start
click mnuCopy
pick File1 "Recpra.Dat"
pick Drive1 "c:"
box question "Reelora Prima" ANY Yes
see lblCopy7.Visible no
see frmCopy.Visible no
see film 1 Title "Solaris"
