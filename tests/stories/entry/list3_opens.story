# In a new film the format opens its list, and DVD is in the box at once.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdNew
click txtFormat
see focus List3
see List3.Visible yes
see List3.Items "DVD" "Laser" "VHS"
see List3.ListIndex 0
see txtFormat "DVD"
see lblSorting "You are inputting onto page 1.   When all entries on this page are complete,  page 2  will come up "
+ "automatically."
see txtCassNo.Enabled no
see txtCLV1.Enabled no
