# In a new film a press on a rating takes it, and the packaging is next.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdNew
click optnoteson
click txtRating
pick List2 "NR"
see txtRating "NR"
see List2.Visible no
see List2.Items
see focus txtPackage
see lblSorting "AUTO SAVE IS OFF!  When the last text box is filled in and the tab key pressed, you will have to "
+ "manually save and sort this record."
