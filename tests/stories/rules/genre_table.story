# Every genre code shows its name; MU shows "Musicals".
film 1 Title="Film AA" Genre="AA"
film 2 Title="Film AD" Genre="AD"
film 3 Title="Film AN" Genre="AN"
film 4 Title="Film CH" Genre="CH"
film 5 Title="Film CL" Genre="CL"
film 6 Title="Film CO" Genre="CO"
film 7 Title="Film DO" Genre="DO"
film 8 Title="Film DR" Genre="DR"
film 9 Title="Film FA" Genre="FA"
film 10 Title="Film FO" Genre="FO"
film 11 Title="Film FM" Genre="FM"
film 12 Title="Film HO" Genre="HO"
film 13 Title="Film IN" Genre="IN"
film 14 Title="Film MU" Genre="MU"
film 15 Title="Film MS" Genre="MS"
film 16 Title="Film MY" Genre="MY"
film 17 Title="Film NA" Genre="NA"
film 18 Title="Film SF" Genre="SF"
film 19 Title="Film SI" Genre="SI"
film 20 Title="Film WE" Genre="WE"
start
see txtGenre "AA"
see txtGenreList "Action Adventure"
click cmdNext
see txtGenre "AD"
see txtGenreList "Adult"
click cmdNext
see txtGenre "AN"
see txtGenreList "Animation"
click cmdNext
see txtGenre "CH"
see txtGenreList "Children"
click cmdNext
see txtGenre "CL"
see txtGenreList "Classic"
click cmdNext
see txtGenre "CO"
see txtGenreList "Comedy"
click cmdNext
see txtGenre "DO"
see txtGenreList "Documentary"
click cmdNext
see txtGenre "DR"
see txtGenreList "Drama"
click cmdNext
see txtGenre "FA"
see txtGenreList "Fantasy"
click cmdNext
see txtGenre "FO"
see txtGenreList "Foreign"
click cmdNext
see txtGenre "FM"
see txtGenreList "Family"
click cmdNext
see txtGenre "HO"
see txtGenreList "Horror"
click cmdNext
see txtGenre "IN"
see txtGenreList "Instructional"
click cmdNext
see txtGenre "MU"
see txtGenreList "Musicals"
click cmdNext
see txtGenre "MS"
see txtGenreList "Mystery Suspense"
click cmdNext
see txtGenre "MY"
see txtGenreList "Mystery"
click cmdNext
see txtGenre "NA"
see txtGenreList "Nature"
click cmdNext
see txtGenre "SF"
see txtGenreList "Science Fiction"
click cmdNext
see txtGenre "SI"
see txtGenreList "Special Interest"
click cmdNext
see txtGenre "WE"
see txtGenreList "Western"
