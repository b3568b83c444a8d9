# No copies nothing; the window stays, and the drive is ignored until it has lost the focus.
drive a floppy
film 1 Title="Solaris"
start
click mnuCopy
pick File1 "Recpra.Dat"
pick Drive1 "a:"
box question "Reelora Prima" "Do you want to copy Recpra.Dat to Drive A: hit Yes, or No " No
see frmCopy.Visible yes
pick Drive1 "a:"
see frmCopy.Visible yes
pick File1 "Recpra.Dat"
pick Drive1 "a:"
box question "Reelora Prima" "Do you want to copy Recpra.Dat to Drive A: hit Yes, or No " Yes
see drive a Recpra.Dat same
see frmCopy.Visible no
