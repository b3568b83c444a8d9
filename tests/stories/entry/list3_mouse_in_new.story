# In a new film a press on a format takes it and closes the list; the number of discs is next.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdNew
click txtFormat
pick List3 "VHS"
see txtFormat "VHS"
see List3.Visible no
see List3.Items
see focus txtNumReel
see lblSorting "You are inputting onto page 1.   When all entries on this page are complete,  page 2  will come up "
+ "automatically."
