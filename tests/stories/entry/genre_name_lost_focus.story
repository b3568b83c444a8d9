# In a new film the genre name that is left steers to the time, whichever way the user goes.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdNew
click txtGenreList
see focus txtGenreList
click txtDirector
see focus txtTime
