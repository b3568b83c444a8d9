# What was shown trimmed is stored left-justified by the next save.
film 1 Title="  Alien" Director="  Ridley Scott"
film 2 Title="Brazil"
start
click cmdEdit
click cmdSave
see film 1 Title "Alien"
see film 1 Director "Ridley Scott"
