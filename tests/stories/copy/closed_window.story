# The close box opens the master file again; the next time the window opens afresh.
drive a none
film 1 Title="Solaris"
film 2 Title="Stalker"
start
click mnuCopy
pick File1 "Recpra.Dat"
pick Drive1 "a:"
box warning "Reelora Prima" ANY OK
close frmCopy
see frmCopy.Visible no
click cmdNext
see txtTitle "Stalker"
click mnuCopy
see Drive1.Enabled no
see lblCopy3.Visible no
see lblCopy7.Visible no
see File1.ListIndex -1
close frmCopy
click cmdPrevious
see txtTitle "Solaris"
