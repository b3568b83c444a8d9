# DVD view refused in Edit: the edit is still on, so that the reset asks about it.
film 1 Title="Zulu" Format="D"
start
click cmdEdit
see state EditMode 1
click mnuByDVD
box warning "Reelora Prima" "Records have not been sorted.  Records must be sorted before records can viewed!" OK
box question "Reelora Prima" "You have not saved your work.  To save it now hit Yes." No
see state EditMode 0
see state ViewKind ""
