# Another view after an empty Laser view closes its file and opens.
film 1 Title="Alien" Format="V"
key VHSpra.Dat "Alien" 1
count VHSpra 1
count Laserpra 1
file Laserpra.Dat ""
start
click mnuByLaser
box warning "ALPHA LASER TITLE SEARCH" "There are No Laser Discs in Library or Files need to Be Sorted" OK
click mnuByVHS
see txtTitle "Alien"
see state ViewKind "VHS"
