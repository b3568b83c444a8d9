# Title list of an empty key file: it ends at its first key, and the reset takes the grid away.
film 1 Title="Film 01" Genre="DR"
count Titlepra 1
file Titlepra.Dat ""
start
click mnuAllTitles
beep
box none "" "End of file!" OK
see state ViewKind ""
see Text1(0).Visible no
