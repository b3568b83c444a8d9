# Find By File No. answered with "1.4" goes to record 1.
films 1 5 Title="Film #"
start
click mnuFile
input "Reelora Prima" "Enter File No To Search:" "1.4"
see txtTitle "Film 1"
see state CurrentRecNo 1
