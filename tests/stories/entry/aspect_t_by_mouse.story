# "TV 1.33:1" chosen by the mouse in Edit is stored as T.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdEdit
click txtLetter
pick List4 "TV 1.33:1"
see txtLetter "TV 1.33:1"
see List4.Visible no
see List4.Items
see focus cmdSave
click cmdSave
see film 1 Letter "T"
