# Laser view of an empty key file in Edit: the film stays open, as nothing resets.
film 1 Title="Alien"
count Laserpra 1
file Laserpra.Dat ""
start
click cmdEdit
click mnuByLaser
box warning "ALPHA LASER TITLE SEARCH" "There are No Laser Discs in Library or Files need to Be Sorted" OK
see state EditMode 1
