# A key file is copied while its view is open, and the view continues.
drive a floppy
film 1 Title="Stalker" Format="D"
film 2 Title="Solaris" Format="D"
sorted
start
click mnuByTitle
see txtTitle "Solaris"
click mnuCopy
pick File1 "Titlepra.Dat"
pick Drive1 "a:"
box question "Reelora Prima" "Do you want to copy Titlepra.Dat to Drive A: hit Yes, or No " Yes
see drive a Titlepra.Dat same
click cmdNext
see txtTitle "Stalker"
