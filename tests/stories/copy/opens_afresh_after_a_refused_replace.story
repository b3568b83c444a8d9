# The copy window opens again with its files in the focus, no drive chosen and no failed attempt; the drive is not
# ignored.
drive a floppy
drive b none
film 1 Title="Solaris"
start
click mnuCopy
pick File1 "Recpra.Dat"
pick Drive1 "b:"
box warning "Reelora Prima" "There is no disk in floppy drive, or wrong drive was selected. Insert disk and click ok." OK
see lblCopy7.Visible yes
pick Drive1 "a:"
box question "Reelora Prima" "Do you want to copy Recpra.Dat to Drive A: hit Yes, or No " Yes
see lblCopy7.Visible no
see frmCopy.Visible no
click mnuCopy
see focus File1
see Drive1.ListIndex -1
see Drive1.Enabled yes
pick Drive1 "a:"
box question "Reelora Prima" ANY No
see frmCopy.Visible no
click mnuCopy
see focus File1
see Drive1.ListIndex -1
pick Drive1 "a:"
box question "Reelora Prima" ANY Yes
see drive a Recpra.Dat same
see frmCopy.Visible no
