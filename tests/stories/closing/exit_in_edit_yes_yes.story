# Yes and Yes: written and ended.
film 1 Title="Alien"
start
click cmdEdit
click mnuExit
box question "Reelora Prima" "You have not saved your work. To save your work hit Yes, else hit No and quit" Yes
box question "Reelora Prima" "Are you sure you want to quit?" Yes
end
see film 1 Tail "\r\n"
