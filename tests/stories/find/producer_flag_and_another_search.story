# Producer search's flag is cleared by another search.
film 1 Title="Film 1" Producer="Nobody"
film 2 Title="Film 2" Producer="Anna Karina"
film 3 Title="Film 3" Producer="Banana Split"
film 4 Title="Film 4" Producer="karina"
start
click mnuProducer
input "Search For Producer" "Enter Producer To Search: " "karin"
click cmdMatch
see state ResumeProducer 1
click mnuFindStar
input "Search For Star" "Enter Star To Search: " ""
see state ResumeProducer 0
see state ResumeStar 0
