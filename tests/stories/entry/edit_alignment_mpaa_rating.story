# In Edit the MPAA rating is not aligned anew for typing.
film 1 Title="Alien"
start
click cmdEdit
click optnoteson
see txtRating.Alignment centre
click txtRating
see focus List2
see txtRating.Alignment centre
