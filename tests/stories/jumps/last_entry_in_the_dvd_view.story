# Find Last Entry in the middle of the DVD view shows its film under the view's title bar; Next goes on from the view's key.
films 1 4 Title="Film #" Genre="SF" Format="D"
sorted
file Last "4\r\n"
start
click mnuByDVD
click cmdNext
see txtTitle "Film 2"
click mnuLastEntry
see txtTitle "Film 4"
see state ViewKind "DVD"
see state KeyFilePos 2
see frmPage1 "Reelora Prima Record  4/ 4        DVD  Sorted"
click cmdNext
see txtTitle "Film 3"
see state KeyFilePos 3
