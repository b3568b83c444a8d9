# In a new Laser film the aspect list that is left steers nowhere.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdNew
click txtFormat
pick List3 "Laser"
click txtLetter
click txtDirector
see focus txtDirector
see List4.Visible no
see List4.Items
