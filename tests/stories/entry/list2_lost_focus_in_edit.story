# In Edit the rating list that is left steers nowhere.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdEdit
click optnoteson
click txtRating
click txtProducer
see focus txtProducer
see List2.Visible no
see List2.Items
see lblSorting.Visible yes
