# Find By File No. out of the DVD view ends it; the walk goes on by number.
films 1 4 Title="Film #" Format="D"
sorted
start
click mnuByDVD
click cmdNext
click mnuFile
input "Reelora Prima" "Enter File No To Search:" "3"
see txtTitle "Film 3"
see state ViewKind ""
see state KeyFilePos 0
see frmPage1 "Reelora Prima Record  3/ 4      Title Non Sorted"
click cmdPrevious
see txtTitle "Film 2"
