# DVD view of a file of 24 bytes: that is no key; the record number that there is is shown.
film 1 Title="Alien" Format="D"
film 2 Title="Brazil" Format="D"
file DVDpra.Dat "Cabaret, a musical film."
count DVDpra 1
start
see length DVDpra.Dat 24
click mnuFile
input "Reelora Prima" "Enter File No To Search:" "2"
click mnuByDVD
see state KeyRecord ""
see state KeyFilePos 1
see state ScanRecNo 2
see txtTitle "Brazil"
see frmPage1 "Reelora Prima Record  2/ 2        DVD  Sorted"
