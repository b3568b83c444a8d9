# A number beyond 32 bits stops the program.
film 1 Title="Alien"
start
click mnuFile
input "Reelora Prima" "Enter File No To Search:" "2147483648"
stop "Overflow"
