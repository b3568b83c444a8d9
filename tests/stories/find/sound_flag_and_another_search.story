# Sound search's flag is cleared by another search.
film 1 Title="Film 1" Sound="Nobody"
film 2 Title="Film 2" Sound="Anna Karina"
film 3 Title="Film 3" Sound="Banana Split"
film 4 Title="Film 4" Sound="karina"
start
click mnuSound
input "Search For Sound" "Enter Sound To Search: \n\rTHX Dolby Etc." "karin"
click cmdMatch
see state ResumeSound 1
click mnuFindStar
input "Search For Star" "Enter Star To Search: " ""
see state ResumeSound 0
see state ResumeStar 0
