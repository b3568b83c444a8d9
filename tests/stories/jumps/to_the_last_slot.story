# The number of the last slot is no end.
films 1 3 Title="Film #"
start
click mnuFile
input "Reelora Prima" "Enter File No To Search:" "3"
see txtTitle "Film 3"
