# In a new DVD film the aspect list that is left steers to the colour.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdNew
click txtFormat
pick List3 "DVD"
click txtLetter
click txtDirector
see focus List6
see List4.Visible no
see List4.Items
