# Find By File No. answered with "2.6" goes to record 3.
films 1 5 Title="Film #"
start
click mnuFile
input "Reelora Prima" "Enter File No To Search:" "2.6"
see txtTitle "Film 3"
see state CurrentRecNo 3
