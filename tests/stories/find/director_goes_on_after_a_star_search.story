# The director search continues with its kept text after a star search, from the film on the screen.
film 1 Title="Film 1" Director="Aa" Star1="Bb"
film 2 Title="Film 2" Director="Aa" Star1="Bb"
film 3 Title="Film 3" Director="Xx" Star1="Cc"
film 4 Title="Film 4" Director="Aa" Star1="Bb"
start
click mnuFindDirector
input "Search For Director" "Enter Director. To Search: " "aa"
click cmdMatch
see state CurrentRecNo 2
click mnuFindStar
input "Search For Star" "Enter Star To Search: " "cc"
see state CurrentRecNo 3
click mnuFindDirector
see state CurrentRecNo 4
see state MatchKind "Director"
