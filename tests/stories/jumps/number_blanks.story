# Find By File No. answered with "   " asks for a record below 1, which stops the program.
film 1 Title="Alien"
start
click mnuFile
input "Reelora Prima" "Enter File No To Search:" "   "
stop "Bad record number"
