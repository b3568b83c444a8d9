# Find Last Entry in the middle of a view shows its film under the view's title bar; Next continues from the view's
# key.
each VIEW  FORMAT KIND  CAPTION
row  dvd   D      DVD   "  DVD  Sorted"
row  laser L      Laser "Laser Sorted"
row  title D      Title "Title Sorted All Formats"
row  vhs   V      VHS   "  VHS  Sorted"

films 1 4 Title="Film #" Genre="SF" Format="{FORMAT}"
sorted
file Last "4\r\n"
start
click mnuBy{KIND}
click cmdNext
see txtTitle "Film 2"
click mnuLastEntry
see txtTitle "Film 4"
see state ViewKind "{KIND}"
see state KeyFilePos 2
see frmPage1 "Reelora Prima Record  4/ 4      {CAPTION}"
click cmdNext
see txtTitle "Film 3"
see state KeyFilePos 3
