# Find By File No. ends a view; the walk continues by number.
each VIEW  FORMAT MENU
row  dvd   D      mnuByDVD
row  laser L      mnuByLaser
row  title D      mnuByTitle
row  vhs   V      mnuByVHS

films 1 4 Title="Film #" Format="{FORMAT}"
sorted
start
click {MENU}
click cmdNext
click mnuFile
input "Reelora Prima" "Enter File No To Search:" "3"
see txtTitle "Film 3"
see state ViewKind ""
see state KeyFilePos 0
see frmPage1 "Reelora Prima Record  3/ 4      Title Non Sorted"
click cmdPrevious
see txtTitle "Film 2"
