# Star search: a hit left from the search before stops the chain after a first star that hits, and heads the film
# with its name.
film 1 Title="Film 1" Star1="Hepburn" Star2="Bogart" Star3="Hepburn"
start
click mnuFindStar
input "Search For Star" "Enter Star To Search: " "bogart"
see state StarHit2 1
see lblHead "Viewing Files For  Bogart                        "
click cmdReset
click mnuFindStar
input "Search For Star" "Enter Star To Search: " "hepburn"
see state MatchPos 1
see state StarHit2 1
see state StarHit3 0
see lblHead "Viewing Files For  Bogart                        "
