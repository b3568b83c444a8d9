# Next in an empty Laser view is past its last key at once: it says so and resets.
film 1 Title="Alien"
count Laserpra 1
file Laserpra.Dat ""
start
click mnuByLaser
box warning "ALPHA LASER TITLE SEARCH" "There are No Laser Discs in Library or Files need to Be Sorted" OK
click cmdNext
beep
box warning "ALPHA LASER TITLE SEARCH" "End of file!" OK
see state KeyFilePos 0
see state ViewKind ""
