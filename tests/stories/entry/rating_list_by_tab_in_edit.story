# In Edit the rating list passes the focus on by the tab order: forwards to the packaging, backwards to its own box,
# which opens it again.
film 1 Title="Alien" Format="V" Rating="R"
start
click cmdEdit
click optnoteson
click txtSound
key Tab
see focus List2
see txtRating "G"
key Down
see txtRating "PG"
key Tab
see focus txtPackage
see txtPackage.Alignment centre
see List2.Visible no
see List2.Items
key Shift+Tab
see focus List2
see txtRating "G"
key End
key Shift+Tab
see focus List2
see txtRating "G"
key x
see focus txtPackage
see lblSorting "Save Work When Finished!"
