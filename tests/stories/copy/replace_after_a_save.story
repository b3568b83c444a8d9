# The copy on the disk is the collection as it is now.
drive a floppy
film 1 Title="Solaris"
start
click mnuCopy
pick File1 "Recpra.Dat"
pick Drive1 "a:"
box question "Reelora Prima" "Do you want to copy Recpra.Dat to Drive A: hit Yes, or No " Yes
click cmdEdit
click txtTitle
type " 2"
click cmdSave
see film 1 Title "Solaris 2"
click mnuCopy
pick File1 "Recpra.Dat"
pick Drive1 "a:"
box question "Reelora Prima" ANY Yes
see drive a Recpra.Dat same
