# Back in an empty Laser view goes to position 1 without a test for the end: there is no number, the focus is on the
# title.
film 1 Title="Alien"
count Laserpra 1
file Laserpra.Dat ""
start
click mnuByLaser
box warning "ALPHA LASER TITLE SEARCH" "There are No Laser Discs in Library or Files need to Be Sorted" OK
click cmdPrevious
see state KeyFilePos 1
see focus txtTitle
see state ViewKind "Laser"
