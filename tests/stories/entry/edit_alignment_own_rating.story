# In Edit the own rating is left-aligned for typing.
film 1 Title="Alien"
start
click cmdEdit
click optnoteson
see txtRatings.Alignment centre
click txtRatings
see focus txtRatings
see txtRatings.Alignment left
