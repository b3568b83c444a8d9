# Yes and then No: the record is written, and the fields stay open.
film 1 Title="Alien"
start
click cmdEdit
click txtDirector
type "Ridley Scott"
click mnuExit
box question "Reelora Prima" "You have not saved your work. To save your work hit Yes, else hit No and quit" Yes
box question "Reelora Prima" "Are you sure you want to quit?" No
see film 1 Director "Ridley Scott"
see state EditMode 1
see state RecordCount 2
