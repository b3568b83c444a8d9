# DVD view opens at its first key after a jump out of its middle, which has closed its file.
film 1 Title="Zulu" Format="D"
film 2 Title="Alien" Format="D"
film 3 Title="Metropolis" Format="D"
film 4 Title="Nosferatu" Format="V"
sorted
start
click mnuByDVD
click cmdNext
click mnuFile
input "Reelora Prima" "Enter File No To Search:" "4"
see txtTitle "Nosferatu"
see state RecordFound 1
click mnuByDVD
see txtTitle "Alien"
see state KeyFilePos 1
see state RecordFound 0
