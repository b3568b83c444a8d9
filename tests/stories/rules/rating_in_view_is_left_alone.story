# In view the rating list is empty, and its rule does nothing.
film 1 Title="Alien" Rating="PG-13"
film 2 Title="Brazil" Rating="R"
start
see txtRating "PG-13"
click cmdNext
see txtRating "R    "
see List2.Items
