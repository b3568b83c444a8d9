# Exit at a key with 49 in its middle has no first question, and No leaves the scratch value.
film 1 Title="Room 49" Format="D"
sorted
start
click mnuByTitle
click mnuExit
box question "Reelora Prima" "Are you sure you want to quit?" No
see state EditMode 6
click mnuExit
box question "Reelora Prima" "Are you sure you want to quit?" Yes
end
