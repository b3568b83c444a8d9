# In a new film a key closes the rating list, and the packaging is next.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdNew
click optnoteson
click txtRating
key Down
key Enter
see txtRating "PG"
see List2.Visible no
see List2.Items
see focus txtPackage
see txtPackage.Alignment left
see lblSorting "Save Work When Finished!"
see lblSorting.Visible yes
