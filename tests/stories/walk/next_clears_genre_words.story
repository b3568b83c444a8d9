# Next onto an empty slot puts two blanks into the genre and sixteen into its name; Back clears nothing of them.
film 1 Title="Alien" Genre="SF" Letter="W"
film 2 Title=""
film 3 Title="Zulu" Genre="DR"
start
click mnuLast
see txtGenreList "Drama"
click cmdPrevious
see txtGenre ""
see txtGenreList "Drama"
see txtLetter " "
