# Genre list, Back: a blank first key is read once more in its own place and leads to its film; then the top is
# reported.
films 1 50 Title="Film ##" Year="19##" Genre="DR" Format="D"
key Titlepra.Dat "" 1
key Titlepra.Dat "Film 02" 2
key Titlepra.Dat "Film 03" 3
key Titlepra.Dat "Film 04" 4
key Titlepra.Dat "Film 05" 5
key Titlepra.Dat "Film 06" 6
key Titlepra.Dat "Film 07" 7
key Titlepra.Dat "Film 08" 8
key Titlepra.Dat "Film 09" 9
key Titlepra.Dat "Film 10" 10
key Titlepra.Dat "Film 11" 11
key Titlepra.Dat "Film 12" 12
key Titlepra.Dat "Film 13" 13
key Titlepra.Dat "Film 14" 14
key Titlepra.Dat "Film 15" 15
key Titlepra.Dat "Film 16" 16
key Titlepra.Dat "Film 17" 17
key Titlepra.Dat "Film 18" 18
key Titlepra.Dat "Film 19" 19
key Titlepra.Dat "Film 20" 20
key Titlepra.Dat "Film 21" 21
key Titlepra.Dat "Film 22" 22
key Titlepra.Dat "Film 23" 23
key Titlepra.Dat "Film 24" 24
key Titlepra.Dat "Film 25" 25
key Titlepra.Dat "Film 26" 26
key Titlepra.Dat "Film 27" 27
key Titlepra.Dat "Film 28" 28
key Titlepra.Dat "Film 29" 29
key Titlepra.Dat "Film 30" 30
key Titlepra.Dat "Film 31" 31
key Titlepra.Dat "Film 32" 32
key Titlepra.Dat "Film 33" 33
key Titlepra.Dat "Film 34" 34
key Titlepra.Dat "Film 35" 35
key Titlepra.Dat "Film 36" 36
key Titlepra.Dat "Film 37" 37
key Titlepra.Dat "Film 38" 38
key Titlepra.Dat "Film 39" 39
key Titlepra.Dat "Film 40" 40
key Titlepra.Dat "Film 41" 41
key Titlepra.Dat "Film 42" 42
key Titlepra.Dat "Film 43" 43
key Titlepra.Dat "Film 44" 44
key Titlepra.Dat "Film 45" 45
key Titlepra.Dat "Film 46" 46
key Titlepra.Dat "Film 47" 47
key Titlepra.Dat "Film 48" 48
key Titlepra.Dat "Film 49" 49
key Titlepra.Dat "Film 50" 50
count Titlepra 50
count Titlepra 50
start
click mnuFindAllGenre
input "Search" "Enter Genre To Search:  Use 2 Letter Abreviation\n\rExamples\n\rAA  Action Adventure \n\rDR  "
+ "Drama\n\rCO  Comedy\n\rupper or lower case" "dr"
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
