# Enter in the list of drives takes the chosen one once more, after a disk was put in.
drive a none
film 1 Title="Solaris"
start
click mnuCopy
key Down
key Tab
key Enter
see frmCopy.Visible yes
key Down
box warning "Reelora Prima" ANY OK
see lblCopy7.Visible yes
drive a floppy
key Enter
box question "Reelora Prima" "Do you want to copy Recpra.Dat to Drive A: hit Yes, or No " Yes
see drive a Recpra.Dat same
see frmCopy.Visible no
