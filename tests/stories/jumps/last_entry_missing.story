# A missing "Last" is skipped: the film on the screen is shown again.
films 1 4 Title="Film #" Genre="SF" Format="D"
start
click cmdNext
click mnuLastEntry
see txtTitle "Film 2"
see state CurrentRecNo 2
see frmPage1 "Reelora Prima Record  2/ 4      Title Non Sorted"
click cmdNext
see txtTitle "Film 3"
