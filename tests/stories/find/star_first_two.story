# Star search: a first star that hits keeps the second from being looked at.
film 1 Title="Film 1" Star1="Ann Lee" Star2="Bob Lee"
start
click mnuFindStar
input "Search For Star" "Enter Star To Search: " "lee"
see state StarHit2 0
see lblHead "Viewing Files For  Ann Lee                       "
