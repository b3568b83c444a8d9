# In Edit the aspect opens its list, with the first row as the default and the reminder to save.
film 1 Title="Alien" Format="D" Letter="T"
start
click cmdEdit
see txtLetter "TV 1.33:1"
click txtLetter
see focus List4
see List4.Items "Wide Screen" "Pan & Scan" "TV 1.33:1"
see List4.ListIndex 0
see txtLetter "Wide Screen"
see lblSorting "Save Work When Finished!"
click cmdSave
see film 1 Letter "W"
