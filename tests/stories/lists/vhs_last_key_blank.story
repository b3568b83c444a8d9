# VHS list whose last key is blank ends without the beep: the step that passes it lands on the end.
films 1 3 Title="Film ##" Genre="DR" Format="V"
key VHSpra.Dat "Film 01" 1
key VHSpra.Dat "Film 02" 2
key VHSpra.Dat "" 3
count VHSpra 3
start
click mnuAllVHS
box none "" "End of file!" OK
see Text1(1) "Film 02"
see Text1(2) ""
see state ListState 0
