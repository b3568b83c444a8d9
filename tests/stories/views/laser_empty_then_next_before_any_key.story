# Next in an empty Laser view, no key having been read before: the blank key buffer is passed over and the end with it.
film 1 Title="Alien"
count Laserpra 1
file Laserpra.Dat ""
start
click mnuByLaser
box warning "ALPHA LASER TITLE SEARCH" "There are No Laser Discs in Library or Files need to Be Sorted" OK
click cmdNext
see state KeyFilePos 2
see focus txtTitle
see state ViewKind "Laser"
