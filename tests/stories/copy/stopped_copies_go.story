# A copy removes what an earlier one left on the disk when it was stopped, and no other file.
drive a floppy
file "../floppy/.reelora-copy.new" "half"
file "../floppy/.reelora-copy.2.new" "half"
file "../floppy/.reelora-copy" "mine"
film 1 Title="Solaris"
start
click mnuCopy
pick File1 "Recpra.Dat"
pick Drive1 "a:"
box question "Reelora Prima" "Do you want to copy Recpra.Dat to Drive A: hit Yes, or No " Yes
see missing "../floppy/.reelora-copy.new"
see missing "../floppy/.reelora-copy.2.new"
see file "../floppy/.reelora-copy" "mine"
see drive a Recpra.Dat same
