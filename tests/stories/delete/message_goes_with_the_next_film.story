# The message of a deletion goes with the next film that is shown.
film 1 Title="Alien" Format="D"
film 2 Title="Solaris" Format="D"
start
click cmdDelete
box question "Reelora Prima" "Are you sure you want to DELETE this record? This file will be removed permanently!!"
+ Yes
see lblSorting.Visible yes
click mnuLast
see lblSorting.Visible no
