# Laser view of a file of 24 bytes: that is no key; the record number that there is is shown.
film 1 Title="Alien" Format="L"
film 2 Title="Brazil" Format="L"
file Laserpra.Dat "Cabaret, a musical film."
count Laserpra 1
start
see length Laserpra.Dat 24
click mnuFile
input "Reelora Prima" "Enter File No To Search:" "2"
click mnuByLaser
see state KeyRecord ""
see state KeyFilePos 1
see state ScanRecNo 2
see txtTitle "Brazil"
see frmPage1 "Reelora Prima Record  2/ 2      Laser Sorted"
