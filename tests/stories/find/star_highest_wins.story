# Star search: of several stars that hit the highest heads the film; each is looked at only if the one before it has
# not hit.
film 1 Title="Film 1" Star1="Ann Lee" Star3="Bob Lee" Star4="Cid Lee" Star6="Dan Lee"
start
click mnuFindStar
input "Search For Star" "Enter Star To Search: " "lee"
see state MatchPos 5
see state StarHit2 0
see state StarHit3 5
see state StarHit4 0
see state StarHit5 0
see state StarHit6 5
see lblHead "Viewing Files For  Dan Lee                       "
