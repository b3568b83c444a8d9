# A cell of the twenty rows has no topic: the one before stays.
each CELL
row  Text1(0)
row  Text1(13)
row  Text2(4)
row  Text3(15)

films 1 30 Title="Film ##" Format="D"
sorted
start
click mnuAllTitles
move frmPage1
click {CELL}
see focus {CELL}
see frmPage1.HelpContext 150
key F1
help 150
