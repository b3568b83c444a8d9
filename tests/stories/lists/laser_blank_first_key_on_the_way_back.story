# Laser list, Back: a blank first key is read once more in its own place and leads to its film; then the top is told.
films 1 50 Title="Film ##" Year="19##" Genre="DR" Format="L"
key Laserpra.Dat "" 1
key Laserpra.Dat "Film 02" 2
key Laserpra.Dat "Film 03" 3
key Laserpra.Dat "Film 04" 4
key Laserpra.Dat "Film 05" 5
key Laserpra.Dat "Film 06" 6
key Laserpra.Dat "Film 07" 7
key Laserpra.Dat "Film 08" 8
key Laserpra.Dat "Film 09" 9
key Laserpra.Dat "Film 10" 10
key Laserpra.Dat "Film 11" 11
key Laserpra.Dat "Film 12" 12
key Laserpra.Dat "Film 13" 13
key Laserpra.Dat "Film 14" 14
key Laserpra.Dat "Film 15" 15
key Laserpra.Dat "Film 16" 16
key Laserpra.Dat "Film 17" 17
key Laserpra.Dat "Film 18" 18
key Laserpra.Dat "Film 19" 19
key Laserpra.Dat "Film 20" 20
key Laserpra.Dat "Film 21" 21
key Laserpra.Dat "Film 22" 22
key Laserpra.Dat "Film 23" 23
key Laserpra.Dat "Film 24" 24
key Laserpra.Dat "Film 25" 25
key Laserpra.Dat "Film 26" 26
key Laserpra.Dat "Film 27" 27
key Laserpra.Dat "Film 28" 28
key Laserpra.Dat "Film 29" 29
key Laserpra.Dat "Film 30" 30
key Laserpra.Dat "Film 31" 31
key Laserpra.Dat "Film 32" 32
key Laserpra.Dat "Film 33" 33
key Laserpra.Dat "Film 34" 34
key Laserpra.Dat "Film 35" 35
key Laserpra.Dat "Film 36" 36
key Laserpra.Dat "Film 37" 37
key Laserpra.Dat "Film 38" 38
key Laserpra.Dat "Film 39" 39
key Laserpra.Dat "Film 40" 40
key Laserpra.Dat "Film 41" 41
key Laserpra.Dat "Film 42" 42
key Laserpra.Dat "Film 43" 43
key Laserpra.Dat "Film 44" 44
key Laserpra.Dat "Film 45" 45
key Laserpra.Dat "Film 46" 46
key Laserpra.Dat "Film 47" 47
key Laserpra.Dat "Film 48" 48
key Laserpra.Dat "Film 49" 49
key Laserpra.Dat "Film 50" 50
count Laserpra 50
count Titlepra 50
start
click mnualllas
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
