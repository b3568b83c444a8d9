# A single blank key is skipped on the way forward.
each LIST   FORMAT KEYS     MENU
row  titles D      Titlepra mnuAllTitles
row  dvd    D      DVDpra   mnualldvd
row  laser  L      Laserpra mnualllas
row  vhs    V      VHSpra   mnuAllVHS

films 1 22 Title="Film ##" Year="19##" Genre="DR" Format="{FORMAT}"
key {KEYS}.Dat "" 1
key {KEYS}.Dat "Film 02" 2
key {KEYS}.Dat "Film 03" 3
key {KEYS}.Dat "Film 04" 4
key {KEYS}.Dat "Film 05" 5
key {KEYS}.Dat "Film 06" 6
key {KEYS}.Dat "Film 07" 7
key {KEYS}.Dat "Film 08" 8
key {KEYS}.Dat "Film 09" 9
key {KEYS}.Dat "" 10
key {KEYS}.Dat "Film 11" 11
key {KEYS}.Dat "Film 12" 12
key {KEYS}.Dat "Film 13" 13
key {KEYS}.Dat "Film 14" 14
key {KEYS}.Dat "Film 15" 15
key {KEYS}.Dat "Film 16" 16
key {KEYS}.Dat "Film 17" 17
key {KEYS}.Dat "Film 18" 18
key {KEYS}.Dat "Film 19" 19
key {KEYS}.Dat "Film 20" 20
key {KEYS}.Dat "Film 21" 21
key {KEYS}.Dat "Film 22" 22
count {KEYS} 22
start
click {MENU}
see Text1(0) "Film 02"
see Text1(7) "Film 09"
see Text1(8) "Film 11"
see Text1(19) "Film 22"
see state KeyFilePos 22
