# The aspect letter P shows as "Pan & Scan".
film 1 Title="Alien" Letter="P"
start
see txtLetter "Pan & Scan"
