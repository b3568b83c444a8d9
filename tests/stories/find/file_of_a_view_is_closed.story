# A search closes the view's file, so that the view opened again finds it free.
film 1 Title="Alien" Director="Aa" Format="D"
film 2 Title="Brazil" Format="D"
sorted
start
click mnuByDVD
click cmdNext
click mnuFindDirector
input "Search For Director" "Enter Director. To Search: " "aa"
click mnuByDVD
see state KeyFilePos 1
see txtTitle "Alien"
click cmdNext
see txtTitle "Brazil"
