# An aspect chosen by mouse in Edit is stored as its letter.
each ASPECT ITEM          STORED
row  p      "Pan & Scan"  P
row  t      "TV 1.33:1"   T
row  w      "Wide Screen" W

film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdEdit
click txtLetter
pick List4 "{ITEM}"
see txtLetter "{ITEM}"
see List4.Visible no
see List4.Items
see focus cmdSave
click cmdSave
see film 1 Letter "{STORED}"
