# Dance search's flag is cleared by another search.
film 1 Title="Film 1" Choreography="Nobody"
film 2 Title="Film 2" Choreography="Anna Karina"
film 3 Title="Film 3" Choreography="Banana Split"
film 4 Title="Film 4" Choreography="karina"
start
click mnuDance
input "Search For Choreographer" "Enter Choreographer To Search: " "karin"
click cmdMatch
see state ResumeDance 1
click mnuFindStar
input "Search For Star" "Enter Star To Search: " ""
see state ResumeDance 0
see state ResumeStar 0
