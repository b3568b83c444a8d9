# Back in a list reads a blank first key once more in its place, which leads to its film; then it reports the top.
each LIST   FORMAT KEYS     MENU
row  titles D      Titlepra mnuAllTitles
row  dvd    D      DVDpra   mnualldvd
row  laser  L      Laserpra mnualllas
row  vhs    V      VHSpra   mnuAllVHS

films 1 50 Title="Film ##" Year="19##" Genre="DR" Format="{FORMAT}"
key {KEYS}.Dat "" 1
key {KEYS}.Dat "Film 02" 2
key {KEYS}.Dat "Film 03" 3
key {KEYS}.Dat "Film 04" 4
key {KEYS}.Dat "Film 05" 5
key {KEYS}.Dat "Film 06" 6
key {KEYS}.Dat "Film 07" 7
key {KEYS}.Dat "Film 08" 8
key {KEYS}.Dat "Film 09" 9
key {KEYS}.Dat "Film 10" 10
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
key {KEYS}.Dat "Film 23" 23
key {KEYS}.Dat "Film 24" 24
key {KEYS}.Dat "Film 25" 25
key {KEYS}.Dat "Film 26" 26
key {KEYS}.Dat "Film 27" 27
key {KEYS}.Dat "Film 28" 28
key {KEYS}.Dat "Film 29" 29
key {KEYS}.Dat "Film 30" 30
key {KEYS}.Dat "Film 31" 31
key {KEYS}.Dat "Film 32" 32
key {KEYS}.Dat "Film 33" 33
key {KEYS}.Dat "Film 34" 34
key {KEYS}.Dat "Film 35" 35
key {KEYS}.Dat "Film 36" 36
key {KEYS}.Dat "Film 37" 37
key {KEYS}.Dat "Film 38" 38
key {KEYS}.Dat "Film 39" 39
key {KEYS}.Dat "Film 40" 40
key {KEYS}.Dat "Film 41" 41
key {KEYS}.Dat "Film 42" 42
key {KEYS}.Dat "Film 43" 43
key {KEYS}.Dat "Film 44" 44
key {KEYS}.Dat "Film 45" 45
key {KEYS}.Dat "Film 46" 46
key {KEYS}.Dat "Film 47" 47
key {KEYS}.Dat "Film 48" 48
key {KEYS}.Dat "Film 49" 49
key {KEYS}.Dat "Film 50" 50
count {KEYS} 50
count Titlepra 50
start
click {MENU}
see Text1(0) "Film 02"
see Text1(19) "Film 21"
click cmdNext20
click cmdPrev20
see Text1(0) "Film 02"
see Text1(19) "Film 21"
see state KeyFilePos 2
click cmdPrev20
beep
box warning "" "Top of file encountered!" OK
see Text1(19) "Film 01"
see Text1(18) "Film 20"
see state ListState 0
