# In a new Laser film the year that is left fills the aspect list, which stays hidden, and steers nowhere.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdNew
click txtFormat
pick List3 "Laser"
click txtYear
click txtDirector
see focus txtDirector
see List4.Items "Wide Screen" "Pan & Scan" "TV 1.33:1"
see List4.ListIndex 0
see List4.Visible no
see txtLetter "Wide Screen"
