# Find Last Record out of the Laser view ends it; the walk goes on by number.
films 1 4 Title="Film #" Format="L"
sorted
start
click mnuByLaser
click cmdNext
click mnuLast

see txtTitle "Film 4"
see state ViewKind ""
see state KeyFilePos 0
see frmPage1 "Reelora Prima Record  4/ 4      Title Non Sorted"
click cmdPrevious
see txtTitle "Film 3"
