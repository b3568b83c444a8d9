# In a new film the rating list that is left without a choice leaves G and steers to the packaging.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdNew
click optnoteson
click txtRating
click txtProducer
see focus txtPackage
see txtPackage.Alignment left
see txtRating "G"
see List2.Visible no
see List2.Items
see lblSorting.Visible yes
see lblSorting "AUTO SAVE IS OFF!  When the last text box is filled in and the tab key pressed, you will have to "
+ "manually save and sort this record."
