# A list whose last key is blank ends without the beep: the step that passes it lands on the end.
each LIST   FORMAT KEYS     MENU
row  titles D      Titlepra mnuAllTitles
row  dvd    D      DVDpra   mnualldvd
row  laser  L      Laserpra mnualllas
row  vhs    V      VHSpra   mnuAllVHS

films 1 3 Title="Film ##" Genre="DR" Format="{FORMAT}"
key {KEYS}.Dat "Film 01" 1
key {KEYS}.Dat "Film 02" 2
key {KEYS}.Dat "" 3
count {KEYS} 3
start
click {MENU}
box none "" "End of file!" OK
see Text1(1) "Film 02"
see Text1(2) ""
see state ListState 0
