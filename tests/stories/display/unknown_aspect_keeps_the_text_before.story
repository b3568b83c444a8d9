# An unknown aspect letter leaves what Next has put there: nothing.
film 1 Title="Alien" Letter="W"
film 2 Title="Brazil" Letter="Z"
start
see txtLetter "Wide Screen"
click mnuFile
input "Reelora Prima" "Enter File No To Search:" "2"
see txtLetter ""
