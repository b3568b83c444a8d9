# In Edit the switch leaves the rating.
film 1 Title="Alien" Rating="R"
start
click cmdEdit
click optnoteson
see txtRating "R    "
