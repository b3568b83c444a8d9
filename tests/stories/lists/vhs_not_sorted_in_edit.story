# VHS list refused in Edit: the edit is still on, so that the reset asks about it.
film 1 Title="Zulu" Format="V"
start
click cmdEdit
click mnuAllVHS
box warning "Reelora Prima" "Records have not been sorted.  Records must be sorted before records can be viewed!" OK
box question "Reelora Prima" "You have not saved your work.  To save it now hit Yes." No
see state ListState 0
