# After a click on the colour alone Reset asks nothing.
film 1 Title="49th Parallel, The" Format="V" Genre="WE"
film 2 Title="Area 49" Format="D" Genre="DR"
sorted
start
click mnuByDVD
see state EditMode 6
click txtColor1
click mnuSave
click txtColor1
box warning "Color/B & W" "Hit edit to change." OK
see state EditMode 0
see state ClearOnShow 2
click cmdReset
see txtTitle "49th Parallel, The"
see lblHead "To write a new record click \"New\" button or ALT \"W\""
see lblHead.Visible yes
see state EditMode 0
see state NewMode 0
see state ClearOnShow 0
see state ViewState 0
see state ViewKind ""
see state CurrentRecNo 1
see state CountRollback 0
see lblPage "PAGE 1"
see lblSorting.Visible no
see lblSave.Visible no
see cmdNext.Enabled yes
see cmdPrevious.Enabled yes
see cmdDelete.Enabled yes
