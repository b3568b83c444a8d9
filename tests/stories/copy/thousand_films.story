# A file of more than one block arrives whole.
drive a floppy
films 1 1000 Title="Film ####" Format="D" Tail="\r\n"
start
click mnuCopy
pick File1 "Recpra.Dat"
pick Drive1 "a:"
box question "Reelora Prima" ANY Yes
see drive a Recpra.Dat same
