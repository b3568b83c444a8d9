# "Wide Screen" chosen by the mouse in Edit is stored as W.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdEdit
click txtLetter
pick List4 "Wide Screen"
see txtLetter "Wide Screen"
see List4.Visible no
see List4.Items
see focus cmdSave
click cmdSave
see film 1 Letter "W"
