# The star search that continues looks for the stars list's text in capitals, though that list has left it in small
# letters.
film 1 Title="Solaris" Star1="Nobody"
film 2 Title="Stalker" Star2="Grace Kelly"
film 3 Title="Mirror" Star2="Gene Kelly"
key Titlepra.Dat "Solaris" 1
count Titlepra 1
start
click mnuFindStar
input "Search For Star" "Enter Star To Search: " "kelly"
see txtTitle "Stalker"
click cmdMatch
see txtTitle "Mirror"
click cmdReset
click mnuStars
input "Reelora Prima Print Program" "Enter Star's Last Name. To Print List: " "grace"
box warning "Reelora Prima Print Program" "No films Staring \"GRACE\" found!" OK
see state StarQuery "grace"
see state ResumeStar 1
click cmdNext
see txtTitle "Stalker"
click mnuFindStar
see state StarQuery "GRACE"
see txtTitle "Stalker"
see lblHead "Viewing Files For  Grace Kelly                   "
