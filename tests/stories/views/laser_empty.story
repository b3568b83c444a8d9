# Laser view of an empty key file says so and does not reset; chosen once more it stops on the file that is open.
film 1 Title="Alien"
film 2 Title="Brazil"
count Laserpra 1
file Laserpra.Dat ""
start
click cmdNext
click mnuByLaser
box warning "ALPHA LASER TITLE SEARCH" "There are No Laser Discs in Library or Files need to Be Sorted" OK
see state ViewKind "Laser"
see state KeyFilePos 0
see state ViewState 2
see state CurrentRecNo 2
see lblHead "Viewing All Laser Disc Titles Alphabetically"
see frmPage1 "Reelora Prima Record  2/ 2      Title Non Sorted"
click mnuByLaser
stop "File already open"
