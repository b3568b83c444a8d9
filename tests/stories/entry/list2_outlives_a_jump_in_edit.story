# A jump by the menu leaves the rating list as it is: its choice stands in for the rating of the film that comes.
film 1 Title="Alien"
film 2 Title="Solaris" Rating="R"
start
click optnoteson
click cmdEdit
click txtRating
see focus List2
see txtRating "G"
click mnuLast
see txtTitle "Solaris"
see txtRating "G"
