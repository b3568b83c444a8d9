# A slot used again after the sort: the old title leads to the new film.
film 1 Title="Alien"
film 2 Title="Brazil"
sorted
film 1 Title="Metropolis"
start
click mnuByTitle
see txtTitle "Metropolis"
see state CurrentRecNo 1
