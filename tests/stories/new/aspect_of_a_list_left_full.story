# A new film starts without the aspect that a new film before it left in its list.
film 1 Title="Alien"
film 2 Title="Brazil"
start
click cmdNew
click txtFormat
pick List3 "DVD"
click txtYear
click cmdSave
see List4.ListIndex 0
click cmdNew
see List4.Items
see txtLetter ""
type "Mirror"
click mnuSave
see film 3 Letter ""
