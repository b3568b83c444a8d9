# Find By File No. answered with "3rd film" goes to record 3.
films 1 5 Title="Film #"
start
click mnuFile
input "Reelora Prima" "Enter File No To Search:" "3rd film"
see txtTitle "Film 3"
see state CurrentRecNo 3
