# VHS view opens at its first key after a jump out of its middle, which has closed its file.
film 1 Title="Zulu" Format="V"
film 2 Title="Alien" Format="V"
film 3 Title="Metropolis" Format="V"
film 4 Title="Nosferatu" Format="L"
sorted
start
click mnuByVHS
click cmdNext
click mnuFile
input "Reelora Prima" "Enter File No To Search:" "4"
see txtTitle "Nosferatu"
see state RecordFound 1
click mnuByVHS
see txtTitle "Alien"
see state KeyFilePos 1
see state RecordFound 0
