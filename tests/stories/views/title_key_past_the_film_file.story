# Title view at a key that points behind the last film: nothing is read, the film stays under the new number.
film 1 Title="Alien" Format="D"
film 2 Title="Brazil" Format="D"
key Titlepra.Dat "Brazil" 2
key Titlepra.Dat "Gone" 9
count Titlepra 2
start
click mnuByTitle
see txtTitle "Brazil"
click cmdNext
see txtTitle "Brazil"
see state CurrentRecNo 9
see frmPage1 "Reelora Prima Record  9/ 2      Title Sorted All Formats"
