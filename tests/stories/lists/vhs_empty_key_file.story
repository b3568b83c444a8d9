# VHS list of an empty key file: it ends at its first key, and the reset takes the grid away.
film 1 Title="Film 01" Genre="DR"
count VHSpra 1
file VHSpra.Dat ""
start
click mnuAllVHS
beep
box none "" "End of file!" OK
see state ViewKind ""
see Text1(0).Visible no
