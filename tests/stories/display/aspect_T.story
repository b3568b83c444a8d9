# The aspect letter T shows as "TV 1.33:1".
film 1 Title="Alien" Letter="T"
start
see txtLetter "TV 1.33:1"
