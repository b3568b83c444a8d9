# VHS list, Back: a blank first key is read once more in its own place and leads to its film; then the top is told.
films 1 50 Title="Film ##" Year="19##" Genre="DR" Format="V"
key VHSpra.Dat "" 1
key VHSpra.Dat "Film 02" 2
key VHSpra.Dat "Film 03" 3
key VHSpra.Dat "Film 04" 4
key VHSpra.Dat "Film 05" 5
key VHSpra.Dat "Film 06" 6
key VHSpra.Dat "Film 07" 7
key VHSpra.Dat "Film 08" 8
key VHSpra.Dat "Film 09" 9
key VHSpra.Dat "Film 10" 10
key VHSpra.Dat "Film 11" 11
key VHSpra.Dat "Film 12" 12
key VHSpra.Dat "Film 13" 13
key VHSpra.Dat "Film 14" 14
key VHSpra.Dat "Film 15" 15
key VHSpra.Dat "Film 16" 16
key VHSpra.Dat "Film 17" 17
key VHSpra.Dat "Film 18" 18
key VHSpra.Dat "Film 19" 19
key VHSpra.Dat "Film 20" 20
key VHSpra.Dat "Film 21" 21
key VHSpra.Dat "Film 22" 22
key VHSpra.Dat "Film 23" 23
key VHSpra.Dat "Film 24" 24
key VHSpra.Dat "Film 25" 25
key VHSpra.Dat "Film 26" 26
key VHSpra.Dat "Film 27" 27
key VHSpra.Dat "Film 28" 28
key VHSpra.Dat "Film 29" 29
key VHSpra.Dat "Film 30" 30
key VHSpra.Dat "Film 31" 31
key VHSpra.Dat "Film 32" 32
key VHSpra.Dat "Film 33" 33
key VHSpra.Dat "Film 34" 34
key VHSpra.Dat "Film 35" 35
key VHSpra.Dat "Film 36" 36
key VHSpra.Dat "Film 37" 37
key VHSpra.Dat "Film 38" 38
key VHSpra.Dat "Film 39" 39
key VHSpra.Dat "Film 40" 40
key VHSpra.Dat "Film 41" 41
key VHSpra.Dat "Film 42" 42
key VHSpra.Dat "Film 43" 43
key VHSpra.Dat "Film 44" 44
key VHSpra.Dat "Film 45" 45
key VHSpra.Dat "Film 46" 46
key VHSpra.Dat "Film 47" 47
key VHSpra.Dat "Film 48" 48
key VHSpra.Dat "Film 49" 49
key VHSpra.Dat "Film 50" 50
count VHSpra 50
count Titlepra 50
start
click mnuAllVHS
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
