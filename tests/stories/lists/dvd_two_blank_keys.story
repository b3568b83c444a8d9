# DVD list: of two blank keys in a row the second leads to a row.
films 1 22 Title="Film ##" Year="19##" Genre="DR" Format="D"
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
key DVDpra.Dat "" 11
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
count DVDpra 22
start
click mnualldvd
see Text1(8) "Film 09"
see Text1(9) "Film 11"
see Text1(10) "Film 12"
see Text1(19) "Film 21"
