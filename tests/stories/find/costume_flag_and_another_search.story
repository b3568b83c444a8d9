# Costume search's flag is cleared by another search.
film 1 Title="Film 1" Costume="Nobody"
film 2 Title="Film 2" Costume="Anna Karina"
film 3 Title="Film 3" Costume="Banana Split"
film 4 Title="Film 4" Costume="karina"
start
click mnuCostume
input "Search For Costume Designer" "Enter Costume Designer To Search: " "karin"
click cmdMatch
see state ResumeCostume 1
click mnuFindStar
input "Search For Star" "Enter Star To Search: " ""
see state ResumeCostume 0
see state ResumeStar 0
