# A view left by a jump, which closed its file, opens at its first key again.
each VIEW  FORMAT FORMAT2 MENU
row  title D      V       mnuByTitle
row  dvd   D      V       mnuByDVD
row  laser L      V       mnuByLaser
row  vhs   V      L       mnuByVHS

film 1 Title="Zulu" Format="{FORMAT}"
film 2 Title="Alien" Format="{FORMAT}"
film 3 Title="Metropolis" Format="{FORMAT}"
film 4 Title="Nosferatu" Format="{FORMAT2}"
sorted
start
click {MENU}
click cmdNext
click mnuFile
input "Reelora Prima" "Enter File No To Search:" "4"
see txtTitle "Nosferatu"
see state RecordFound 1
click {MENU}
see txtTitle "Alien"
see state KeyFilePos 1
see state RecordFound 0
