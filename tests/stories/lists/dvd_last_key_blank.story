# DVD list whose last key is blank ends without the beep: the step that passes it lands on the end.
films 1 3 Title="Film ##" Genre="DR" Format="D"
key DVDpra.Dat "Film 01" 1
key DVDpra.Dat "Film 02" 2
key DVDpra.Dat "" 3
count DVDpra 3
start
click mnualldvd
box none "" "End of file!" OK
see Text1(1) "Film 02"
see Text1(2) ""
see state ListState 0
