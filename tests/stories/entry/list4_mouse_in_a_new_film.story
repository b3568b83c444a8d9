# In a new film a press on an aspect takes it; the colour is next.
each FORMAT_NAME ITEM  FOCUS
row  dvd         DVD   List6
row  laser       Laser List5
row  vhs         VHS   List6

film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdNew
click txtFormat
pick List3 "{ITEM}"
click txtLetter
pick List4 "TV 1.33:1"
see txtLetter "TV 1.33:1"
see List4.Visible no
see focus {FOCUS}
