# Find By File No. answered with "2.5" goes to record 2.
films 1 5 Title="Film #"
start
click mnuFile
input "Reelora Prima" "Enter File No To Search:" "2.5"
see txtTitle "Film 2"
see state CurrentRecNo 2
