# Shift Tab out of the aspect and mode lists of a new laser goes back to their boxes, which open them again; Esc is a
# typed key there like any other.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdNew
click txtFormat
key Down
see txtFormat "Laser"
key x
see focus txtNumReel
click txtYear
key Tab
see focus List4
key End
see txtLetter "TV 1.33:1"
key Shift+Tab
see focus List4
see List4.Items "Wide Screen" "Pan & Scan" "TV 1.33:1"
see txtLetter "Wide Screen"
key Tab
see focus List5
key Down
see txtCLV1 "CAV"
key Shift+Tab
see focus List5
see List5.Items "CLV" "CAV"
see txtCLV1 "CLV"
key Esc
see focus List6
