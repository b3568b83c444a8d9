# DVD list, Back: a blank key leads to its film, and the key before it is left out.
films 1 50 Title="Film ##" Year="19##" Genre="DR" Format="D"
key DVDpra.Dat "Film 01" 1
key DVDpra.Dat "Film 02" 2
key DVDpra.Dat "Film 03" 3
key DVDpra.Dat "Film 04" 4
key DVDpra.Dat "Film 05" 5
key DVDpra.Dat "Film 06" 6
key DVDpra.Dat "Film 07" 7
key DVDpra.Dat "Film 08" 8
key DVDpra.Dat "Film 09" 9
key DVDpra.Dat "" 10
key DVDpra.Dat "Film 11" 11
key DVDpra.Dat "Film 12" 12
key DVDpra.Dat "Film 13" 13
key DVDpra.Dat "Film 14" 14
key DVDpra.Dat "Film 15" 15
key DVDpra.Dat "Film 16" 16
key DVDpra.Dat "Film 17" 17
key DVDpra.Dat "Film 18" 18
key DVDpra.Dat "Film 19" 19
key DVDpra.Dat "Film 20" 20
key DVDpra.Dat "Film 21" 21
key DVDpra.Dat "Film 22" 22
key DVDpra.Dat "Film 23" 23
key DVDpra.Dat "Film 24" 24
key DVDpra.Dat "Film 25" 25
key DVDpra.Dat "Film 26" 26
key DVDpra.Dat "Film 27" 27
key DVDpra.Dat "Film 28" 28
key DVDpra.Dat "Film 29" 29
key DVDpra.Dat "Film 30" 30
key DVDpra.Dat "Film 31" 31
key DVDpra.Dat "Film 32" 32
key DVDpra.Dat "Film 33" 33
key DVDpra.Dat "Film 34" 34
key DVDpra.Dat "Film 35" 35
key DVDpra.Dat "Film 36" 36
key DVDpra.Dat "Film 37" 37
key DVDpra.Dat "Film 38" 38
key DVDpra.Dat "Film 39" 39
key DVDpra.Dat "Film 40" 40
key DVDpra.Dat "Film 41" 41
key DVDpra.Dat "Film 42" 42
key DVDpra.Dat "Film 43" 43
key DVDpra.Dat "Film 44" 44
key DVDpra.Dat "Film 45" 45
key DVDpra.Dat "Film 46" 46
key DVDpra.Dat "Film 47" 47
key DVDpra.Dat "Film 48" 48
key DVDpra.Dat "Film 49" 49
key DVDpra.Dat "Film 50" 50
count DVDpra 50
count Titlepra 50
start
click mnualldvd
see Text1(0) "Film 01"
see Text1(8) "Film 09"
see Text1(9) "Film 11"
see Text1(19) "Film 21"
click cmdNext20
see Text1(0) "Film 22"
see Text1(19) "Film 41"
click cmdPrev20
see Text1(0) "Film 01"
see Text1(7) "Film 08"
see Text1(8) "Film 10"
see Text1(9) "Film 11"
see Text1(18) "Film 20"
see Text1(19) "Film 21"
see state KeyFilePos 1
see state BackCount 40
