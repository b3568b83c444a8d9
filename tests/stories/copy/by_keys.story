# The window by keys alone: each move in the list of drives is a choice.
drive a floppy
film 1 Title="Solaris"
start
click mnuCopy
see focus File1
key Down
see File1.ListIndex 0
see Drive1.Enabled yes
key Tab
see focus Drive1
key Down
box question "Reelora Prima" "Do you want to copy Recpra.Dat to Drive A: hit Yes, or No " Yes
see drive a Recpra.Dat same
see frmCopy.Visible no
