# No to the first question ends at once.
film 1 Title="Alien"
start
click cmdEdit
click txtDirector
type "x"
click mnuExit
box question "Reelora Prima" "You have not saved your work. To save your work hit Yes, else hit No and quit" No
end
see state EditMode 0
see film 1 Director ""
