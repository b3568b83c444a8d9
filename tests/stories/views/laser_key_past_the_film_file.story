# Laser view at a key that points behind the last film: nothing is read, the film stays under the new number.
film 1 Title="Alien" Format="L"
film 2 Title="Brazil" Format="L"
key Laserpra.Dat "Brazil" 2
key Laserpra.Dat "Gone" 9
count Laserpra 2
start
click mnuByLaser
see txtTitle "Brazil"
click cmdNext
see txtTitle "Brazil"
see state CurrentRecNo 9
see frmPage1 "Reelora Prima Record  9/ 2      Laser Sorted"
