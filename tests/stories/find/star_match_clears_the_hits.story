# Star search: Match clears the hits of the second to the sixth star before it continues.
film 1 Title="Film 1" Star2="Ann Lee" Star4="Bob Lee"
film 2 Title="Film 2" Star1="Cid Lee" Star2="Other"
start
click mnuFindStar
input "Search For Star" "Enter Star To Search: " "lee"
see state StarHit2 5
see state StarHit3 0
see state StarHit4 5
click cmdMatch
see state CurrentRecNo 2
see state StarHit2 0
see state StarHit4 0
see lblHead "Viewing Files For  Cid Lee                       "
