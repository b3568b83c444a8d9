# In Edit the genre code is not aligned anew for typing.
film 1 Title="Alien"
start
click cmdEdit
see txtGenre.Alignment centre
click txtGenre
see focus List1
see txtGenre.Alignment centre
