# A 0 in "Last" becomes the record's number, the read fails and is skipped: the film stays under number 0.
films 1 4 Title="Film #" Genre="SF" Format="D"
file Last "0\r\n"
start
click cmdNext
click mnuLastEntry
see txtTitle "Film 2"
see state CurrentRecNo 0
see frmPage1 "Reelora Prima Record  0/ 4      Title Non Sorted"
click cmdNext
see txtTitle "Film 1"
see state CurrentRecNo 1
