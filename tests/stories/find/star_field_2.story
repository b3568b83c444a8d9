# Star search: star 2 hits, and its name heads the film.
film 1 Title="Film 1" Star1="Aa" Star2="Bb" Star3="Cc" Star4="Dd" Star5="Ee" Star6="Ff"
film 2 Title="Film 2" Star2="Anna Karina"
start
click mnuFindStar
input "Search For Star" "Enter Star To Search: " "karina"
see state CurrentRecNo 2
see txtStar2(1) "Anna Karina"
see lblHead "Viewing Files For  Anna Karina                   "
see state MatchPos 0
see state StarHit2 6
see state StarHit3 0
see state StarHit4 0
see state StarHit5 0
see state StarHit6 0
see state StarTyped "karina"
see state StarQuery "KARINA"
