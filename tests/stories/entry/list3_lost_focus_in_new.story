# In a new film the format list that is left empties itself and steers nowhere.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdNew
click txtFormat
click txtDirector
see focus txtDirector
see List3.Visible no
see List3.Items
see txtFormat "DVD"
