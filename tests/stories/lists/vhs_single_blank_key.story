# VHS list: a blank key is passed over on the way on.
films 1 22 Title="Film ##" Year="19##" Genre="DR" Format="V"
key VHSpra.Dat "" 1
key VHSpra.Dat "Film 02" 2
key VHSpra.Dat "Film 03" 3
key VHSpra.Dat "Film 04" 4
key VHSpra.Dat "Film 05" 5
key VHSpra.Dat "Film 06" 6
key VHSpra.Dat "Film 07" 7
key VHSpra.Dat "Film 08" 8
key VHSpra.Dat "Film 09" 9
key VHSpra.Dat "" 10
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
count VHSpra 22
start
click mnuAllVHS
see Text1(0) "Film 02"
see Text1(7) "Film 09"
see Text1(8) "Film 11"
see Text1(19) "Film 22"
see state KeyFilePos 22
