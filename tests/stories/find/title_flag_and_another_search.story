# Title search's flag is cleared by another search.
film 1 Title="Nobody"
film 2 Title="Anna Karina"
film 3 Title="Banana Split"
film 4 Title="karina"
start
click mnuFindTitle
input "Search For Title" "Enter Title. To Search: " "karin"
click cmdMatch
see state ResumeTitle 1
click mnuFindStar
input "Search For Star" "Enter Star To Search: " ""
see state ResumeTitle 0
see state ResumeStar 0
