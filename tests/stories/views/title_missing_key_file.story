# A missing key file is made empty by the view that opens it.
film 1 Title="Alien"
count Titlepra 1
start
see missing Titlepra.Dat
click mnuByTitle
see focus txtTitle
see length Titlepra.Dat 0
