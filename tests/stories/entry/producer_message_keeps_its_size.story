# Once the message line has grown it stays so, with another text as well.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
file AutoSave "YES\r\n"
file AutoSort "YES\r\n"
start
click cmdNew
click optnoteson
see lblSorting.FontSize 14
click cmdSave
see lblSorting.FontSize 14
click cmdEdit
see lblSorting.FontSize 14
