# A drive without a disk: the warning, then another try.
drive a none
drive b stick
film 1 Title="Solaris"
start
click mnuCopy
pick File1 "Recpra.Dat"
pick Drive1 "a:"
box warning "Reelora Prima" "There is no disk in floppy drive, or wrong drive was selected. Insert disk and click ok."
+ OK
see lblCopy7.Visible yes
see frmCopy.Visible yes
pick Drive1 "a:"
box warning "Reelora Prima" "There is no disk in floppy drive, or wrong drive was selected. Insert disk and click ok."
+ OK
pick Drive1 "b:"
box question "Reelora Prima" "Do you want to copy Recpra.Dat to Drive B: hit Yes, or No " Yes
see drive b Recpra.Dat same
see frmCopy.Visible no
