# In Edit the genre name is not aligned anew for typing.
film 1 Title="Alien"
start
click cmdEdit
see txtGenreList.Alignment centre
click txtGenreList
see focus txtGenreList
see txtGenreList.Alignment centre
