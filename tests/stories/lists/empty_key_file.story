# A list of an empty key file ends at its first key; the reset takes the grid away.
each LIST   COUNT    MENU
row  titles Titlepra mnuAllTitles
row  dvd    DVDpra   mnualldvd
row  laser  Laserpra mnualllas
row  vhs    VHSpra   mnuAllVHS

film 1 Title="Film 01" Genre="DR"
count {COUNT} 1
file {COUNT}.Dat ""
start
click {MENU}
beep
box none "" "End of file!" OK
see state ViewKind ""
see Text1(0).Visible no
