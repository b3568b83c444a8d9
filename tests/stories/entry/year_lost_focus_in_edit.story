# In Edit the year that is left steers nowhere and fills no list.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdEdit
click txtYear
click txtDirector
see focus txtDirector
see List4.Items
