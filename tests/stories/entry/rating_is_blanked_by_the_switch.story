# In a new film the switch blanks the rating that was left in the box.
film 1 Title="Alien" Rating="R"
film 2 Title="Brazil"
start
see txtRating "R    "
click cmdNew
click optnoteson
see txtRating ""
click txtRating
key Down
see txtRating "PG"
key Enter
click optNotesoff
click optnoteson
see txtRating ""
