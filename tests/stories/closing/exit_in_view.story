# Exit asks once in view; No stays, Yes ends.
film 1 Title="Alien"
start
click mnuExit
box question "Reelora Prima" "Are you sure you want to quit?" No
see txtTitle "Alien"
click mnuExit
box question "Reelora Prima" "Are you sure you want to quit?" Yes
end
