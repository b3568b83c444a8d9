# An empty file stops the program.
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

file {FILE_NAME} ""
film 1 Title="Alien"
start
stop "Input past end of file"
see length {FILE_NAME} 0
see length Recpra.Dat 649
