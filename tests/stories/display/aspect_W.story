# The aspect letter W shows as "Wide Screen".
film 1 Title="Alien" Letter="W"
start
see txtLetter "Wide Screen"
