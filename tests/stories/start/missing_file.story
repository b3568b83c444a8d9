# Without one of its files the program names the failure and stops.
each FILE_NAME
row  AutoSave
row  AutoSort
row  BGColor
row  DVDpra
row  Fo1
row  Laserpra
row  Titlepra
row  VHSpra
row  tagForColor
row  txtBGColor
row  txtForColor

remove {FILE_NAME}
film 1 Title="Alien"
start
stop "File not found"
see missing {FILE_NAME}
see length Recpra.Dat 649
