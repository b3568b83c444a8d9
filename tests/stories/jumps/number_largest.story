# The largest number of 32 bits is only past the end.
film 1 Title="Alien"
start
click mnuFile
input "Reelora Prima" "Enter File No To Search:" "2147483647"
box warning "Reelora Prima " "End of file!" OK
see state CurrentRecNo 1
