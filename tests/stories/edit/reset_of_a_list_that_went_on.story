# Reset clears the mark of a list that went on.
films 1 45 Title="Film ##" Format="V"
sorted
start
click mnuAllVHS
click cmdNext20
see state PageMode 4
click cmdReset
see state PageMode 0
