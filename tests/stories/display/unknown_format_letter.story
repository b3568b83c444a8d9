# A letter outside the table is shown as it is, in capitals.
film 1 Title="Alien" Format="x"
start
see txtFormat "X"
