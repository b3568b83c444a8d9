# Find Last Entry in the middle of the VHS view shows its film under the view's title bar; Next goes on from the view's key.
films 1 4 Title="Film #" Genre="SF" Format="V"
sorted
file Last "4\r\n"
start
click mnuByVHS
click cmdNext
see txtTitle "Film 2"
click mnuLastEntry
see txtTitle "Film 4"
see state ViewKind "VHS"
see state KeyFilePos 2
see frmPage1 "Reelora Prima Record  4/ 4        VHS  Sorted"
click cmdNext
see txtTitle "Film 3"
see state KeyFilePos 3
