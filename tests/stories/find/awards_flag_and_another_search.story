# Awards search's flag is cleared by another search.
film 1 Title="Film 1" Awards="Nobody"
film 2 Title="Film 2" Awards="Anna Karina"
film 3 Title="Film 3" Awards="Banana Split"
film 4 Title="Film 4" Awards="karina"
start
click mnuAwards
input "Search For Awards" "Enter Awards To Search: " "karin"
click cmdMatch
see state ResumeAwards 1
click mnuFindStar
input "Search For Star" "Enter Star To Search: " ""
see state ResumeAwards 0
see state ResumeStar 0
