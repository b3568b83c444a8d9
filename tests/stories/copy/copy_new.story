# A file that the disk does not hold yet is copied after one question, and the record screen continues.
drive a floppy
film 1 Title="Solaris"
film 2 Title="Stalker"
start
click mnuCopy
pick File1 "Recpra.Dat"
pick Drive1 "a:"
box question "Reelora Prima" "Do you want to copy Recpra.Dat to Drive A: hit Yes, or No " Yes
see drive a Recpra.Dat same
see frmCopy.Visible no
see frmPage1.Visible yes
click cmdNext
see txtTitle "Stalker"
