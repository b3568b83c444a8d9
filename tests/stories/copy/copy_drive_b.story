# The second drive.
drive a none
drive b stick
film 1 Title="Solaris"
sorted
start
click mnuCopy
dblclick File1
see Drive1.Enabled yes
pick File1 "Titlepra.Dat"
pick Drive1 "b:"
box question "Reelora Prima" "Do you want to copy Titlepra.Dat to Drive B: hit Yes, or No " Yes
see drive b Titlepra.Dat same
see frmCopy.Visible no
