# Star search: star 4 hits, and its name heads the film.
film 1 Title="Film 1" Star1="Aa" Star2="Bb" Star3="Cc" Star4="Dd" Star5="Ee" Star6="Ff"
film 2 Title="Film 2" Star4="Anna Karina"
start
click mnuFindStar
input "Search For Star" "Enter Star To Search: " "karina"
see state CurrentRecNo 2
see txtStar4(1) "Anna Karina"
see lblHead "Viewing Files For  Anna Karina                   "
see state MatchPos 0
see state StarHit2 0
see state StarHit3 0
see state StarHit4 6
see state StarHit5 0
see state StarHit6 0
see state StarTyped "karina"
see state StarQuery "KARINA"
