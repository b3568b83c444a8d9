# Delete answered No writes the aspect back as it was when a new film before it left the aspect list full.
film 1 Title="Alien" Letter="T"
film 2 Title="Brazil"
start
click cmdNew
click txtFormat
pick List3 "DVD"
click txtYear
click cmdSave
see List4.ListIndex 0
click cmdPrevious
click cmdPrevious
see txtTitle "Alien"
click cmdDelete
box question "Reelora Prima" "Are you sure you want to DELETE this record? This file will be removed permanently!!" No
see film 1 Letter "T"
see txtLetter "TV 1.33:1"
