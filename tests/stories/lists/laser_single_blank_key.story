# Laser list: a blank key is passed over on the way on.
films 1 22 Title="Film ##" Year="19##" Genre="DR" Format="L"
key Laserpra.Dat "" 1
key Laserpra.Dat "Film 02" 2
key Laserpra.Dat "Film 03" 3
key Laserpra.Dat "Film 04" 4
key Laserpra.Dat "Film 05" 5
key Laserpra.Dat "Film 06" 6
key Laserpra.Dat "Film 07" 7
key Laserpra.Dat "Film 08" 8
key Laserpra.Dat "Film 09" 9
key Laserpra.Dat "" 10
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
count Laserpra 22
start
click mnualllas
see Text1(0) "Film 02"
see Text1(7) "Film 09"
see Text1(8) "Film 11"
see Text1(19) "Film 22"
see state KeyFilePos 22
