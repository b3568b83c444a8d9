# In a new film a key closes the aspect list; the colour is next.
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
key Down
key Enter
see txtLetter "Pan & Scan"
see List4.Visible no
see List4.Items
see focus {FOCUS}
