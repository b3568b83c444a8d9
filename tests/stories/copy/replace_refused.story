# No keeps the file on the disk and leaves the window.
drive a floppy
film 1 Title="Solaris"
film 2 Title="Stalker"
start
click mnuCopy
pick File1 "Recpra.Dat"
pick Drive1 "a:"
box question "Reelora Prima" ANY Yes
click mnuCopy
pick File1 "Recpra.Dat"
pick Drive1 "a:"
box question "Reelora Prima" ANY No
see frmCopy.Visible no
see frmPage1.Visible yes
see drive a Recpra.Dat same
click cmdNext
see txtTitle "Stalker"
click mnuCopy
pick Drive1 "a:"
box question "Reelora Prima" ANY No
see frmCopy.Visible no
