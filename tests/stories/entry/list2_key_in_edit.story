# In Edit a key closes the rating list with the reminder to save; the packaging is next by tab.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdEdit
click optnoteson
click txtRating
key Enter
see txtRating "G"
see List2.Visible no
see List2.Items
see focus txtPackage
see txtPackage.Alignment centre
see lblSorting "Save Work When Finished!"
see lblSorting.Visible yes
