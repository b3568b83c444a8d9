# Each aspect letter is shown as its name.
each ASPECT SHOWN
row  P      "Pan & Scan"
row  T      "TV 1.33:1"
row  W      "Wide Screen"

film 1 Title="Alien" Letter="{ASPECT}"
start
see txtLetter "{SHOWN}"
