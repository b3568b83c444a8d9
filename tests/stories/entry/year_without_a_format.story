# In a new film without a format the year that is left does nothing.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdNew
click txtYear
click txtDirector
see focus txtDirector
see List4.Items
