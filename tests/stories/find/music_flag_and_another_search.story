# Music search's flag is cleared by another search.
film 1 Title="Film 1" Music="Nobody"
film 2 Title="Film 2" Music="Anna Karina"
film 3 Title="Film 3" Music="Banana Split"
film 4 Title="Film 4" Music="karina"
start
click mnuMusic
input "Search For Music Composer" "Enter Music Composer To Search: " "karin"
click cmdMatch
see state ResumeMusic 1
click mnuFindStar
input "Search For Star" "Enter Star To Search: " ""
see state ResumeMusic 0
see state ResumeStar 0
