# Laser list whose last key is blank ends without the beep: the step that passes it lands on the end.
films 1 3 Title="Film ##" Genre="DR" Format="L"
key Laserpra.Dat "Film 01" 1
key Laserpra.Dat "Film 02" 2
key Laserpra.Dat "" 3
count Laserpra 3
start
click mnualllas
box none "" "End of file!" OK
see Text1(1) "Film 02"
see Text1(2) ""
see state ListState 0
