# The director search's flag, which other searches leave, is cleared by their Match.
film 1 Title="Film 1" Director="Aa" Star1="Cc"
film 2 Title="Film 2" Director="Aa" Star1="Cc"
film 3 Title="Film 3" Director="Aa" Star1="Cc"
start
click mnuFindDirector
input "Search For Director" "Enter Director. To Search: " "aa"
click cmdMatch
click mnuFindStar
input "Search For Star" "Enter Star To Search: " "cc"
see state ResumeDirector 1
click cmdMatch
see state CurrentRecNo 2
see state ResumeDirector 0
see state ResumeStar 1
