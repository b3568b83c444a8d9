# Genre list: of two blank keys in a row the second leads to a row.
films 1 22 Title="Film ##" Year="19##" Genre="DR" Format="D"
key Titlepra.Dat "Film 01" 1
key Titlepra.Dat "Film 02" 2
key Titlepra.Dat "Film 03" 3
key Titlepra.Dat "Film 04" 4
key Titlepra.Dat "Film 05" 5
key Titlepra.Dat "Film 06" 6
key Titlepra.Dat "Film 07" 7
key Titlepra.Dat "Film 08" 8
key Titlepra.Dat "Film 09" 9
key Titlepra.Dat "" 10
key Titlepra.Dat "" 11
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
count Titlepra 22
start
click mnuFindAllGenre
input "Search" "Enter Genre To Search:  Use 2 Letter Abreviation\n\rExamples\n\rAA  Action Adventure \n\rDR  "
+ "Drama\n\rCO  Comedy\n\rupper or lower case" "dr"
see Text1(8) "Film 09"
see Text1(9) "Film 11"
see Text1(10) "Film 12"
see Text1(19) "Film 21"
