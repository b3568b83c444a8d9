# Title view refused in Edit: the edit is over before the reset, which asks nothing.
film 1 Title="Zulu" Format="D"
start
click cmdEdit
see state EditMode 1
click mnuByTitle
box warning "Reelora Prima Print Program" "Records have not been sorted.  Records must be sorted before records can "
+ "viewed!" OK

see state EditMode 0
see state ViewKind ""
