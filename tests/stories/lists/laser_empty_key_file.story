# Laser list of an empty key file: it ends at its first key, and the reset takes the grid away.
film 1 Title="Film 01" Genre="DR"
count Laserpra 1
file Laserpra.Dat ""
start
click mnualllas
beep
box none "" "End of file!" OK
see state ViewKind ""
see Text1(0).Visible no
