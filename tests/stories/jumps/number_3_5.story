# Find By File No. answered with "3.5" goes to record 4.
films 1 5 Title="Film #"
start
click mnuFile
input "Reelora Prima" "Enter File No To Search:" "3.5"
see txtTitle "Film 4"
see state CurrentRecNo 4
