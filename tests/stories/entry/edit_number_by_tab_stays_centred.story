# In Edit the number of discs is left-aligned by a click only, not by the focus.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdEdit
click txtColor1
see state ClearOnShow 2
click txtFormat
key Tab
see focus txtNumReel
see txtNumReel.Alignment centre
click txtNumReel
see txtNumReel.Alignment left
