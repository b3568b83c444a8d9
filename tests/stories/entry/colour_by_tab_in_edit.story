# In Edit the focus alone opens no list on the colour, and typing stays.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdEdit
click txtColor1
key Shift+Tab
see focus txtColor1
see List6.Visible no
clear
type "Sepia"
see txtColor1 "Sepia"
click cmdSave
see film 1 Color1 "Sepia"
