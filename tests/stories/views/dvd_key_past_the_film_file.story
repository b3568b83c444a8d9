# DVD view at a key that points behind the last film: nothing is read, the film stays under the new number.
film 1 Title="Alien" Format="D"
film 2 Title="Brazil" Format="D"
key DVDpra.Dat "Brazil" 2
key DVDpra.Dat "Gone" 9
count DVDpra 2
start
click mnuByDVD
see txtTitle "Brazil"
click cmdNext
see txtTitle "Brazil"
see state CurrentRecNo 9
see frmPage1 "Reelora Prima Record  9/ 2        DVD  Sorted"
