# Delete answered No moves an article that still stood in front.
film 1 Title="The Alien"
film 2 Title="Brazil"
start
click cmdDelete
box question "Reelora Prima" "Are you sure you want to DELETE this record? This file will be removed permanently!!" No
see film 1 Title "Alien, The"
see txtTitle "Alien, The"
