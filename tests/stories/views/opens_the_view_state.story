# A view that opens says so in the state of the screen.
each VIEW  MENU       FORMAT
row  Title mnuByTitle D
row  DVD   mnuByDVD   D
row  Laser mnuByLaser L
row  VHS   mnuByVHS   V

films 1 3 Title="Film ##" Format="{FORMAT}"
sorted
start
click {MENU}
see state ViewKind "{VIEW}"
see state ViewState 2
