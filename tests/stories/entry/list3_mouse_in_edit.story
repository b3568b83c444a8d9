# In Edit a press on a format takes it, and Save gets the focus.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdEdit
click txtFormat
pick List3 "Laser"
see txtFormat "Laser"
see List3.Visible no
see focus cmdSave
click cmdSave
see film 1 Format "L"
