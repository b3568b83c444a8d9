# "Try Again!" is gone when the window is opened again.
drive a none
film 1 Title="Solaris"
start
click mnuCopy
pick File1 "Recpra.Dat"
pick Drive1 "a:"
box warning "Reelora Prima" ANY OK
see lblCopy7.Visible yes
close frmCopy
click mnuCopy
see lblCopy7.Visible no
see Drive1.ListIndex -1
see focus File1
