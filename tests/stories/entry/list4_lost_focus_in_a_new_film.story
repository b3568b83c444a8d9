# In a new film, leaving the aspect list leads to the colour.
each FORMAT_NAME ITEM  FOCUS
row  dvd         DVD   List6
row  laser       Laser txtDirector
row  vhs         VHS   List6

film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdNew
click txtFormat
pick List3 "{ITEM}"
click txtLetter
click txtDirector
see focus {FOCUS}
see List4.Visible no
see List4.Items
