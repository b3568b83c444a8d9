# A free slot in the middle shows empty fields and sixteen blanks for the name of its genre.
film 1 Title="Alien" Genre="SF" Format="L"
film 3 Title="Cabaret" Genre="MU" Format="D"
start
click cmdNext
see txtTitle ""
see txtFormat ""
see txtGenre ""
see txtGenreList "                "
see state RecordCount 3
click cmdNext
see txtGenreList "Musicals"
