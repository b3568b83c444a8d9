# Laser view of a file of 25 bytes: that counts as a key, whose number reads as 0.
film 1 Title="Alien" Format="L"
film 2 Title="Brazil" Format="L"
file Laserpra.Dat "Cabaret, a musical film.."
count Laserpra 1
start
see length Laserpra.Dat 25
click mnuFile
input "Reelora Prima" "Enter File No To Search:" "2"
click mnuByLaser
see state KeyRecord "Cabaret, a musical film..                        "
see state KeyFilePos 1
see state ScanRecNo 0
see focus txtTitle
see txtTitle "Brazil"
see frmPage1 "Reelora Prima Record  2/ 2      Title Non Sorted"
