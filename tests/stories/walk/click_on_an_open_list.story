# A click on an open pick list is a press on its selected item.
films 1 2 Title="Film ##" Format="V"
start
click cmdNew
type "Alien"
key Tab
key Tab
key Tab
key Tab
key Tab
key Tab
key Tab
key Tab
key Tab
see focus List3
key Down
click List3
see txtFormat "Laser"
see List3.Visible no
