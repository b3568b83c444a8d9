# VHS view at a key that points behind the last film: nothing is read, the film stays under the new number.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
key VHSpra.Dat "Brazil" 2
key VHSpra.Dat "Gone" 9
count VHSpra 2
start
click mnuByVHS
see txtTitle "Brazil"
click cmdNext
see txtTitle "Brazil"
see state CurrentRecNo 9
see frmPage1 "Reelora Prima Record  9/ 2        VHS  Sorted"
