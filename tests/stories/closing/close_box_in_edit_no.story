# No ends without saving.
film 1 Title="Alien"
start
click cmdEdit
click txtDirector
type "Ridley Scott"
close
box question "Reelora Prima" "You have not saved your work. To save your work hit Yes, else hit No and quit" No
end
see film 1 Director ""
