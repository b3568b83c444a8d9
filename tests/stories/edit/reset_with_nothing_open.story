# Reset with nothing open asks nothing and shows record 1.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdNext
see state ViewState 1
click cmdReset
see txtTitle "Alien"
see frmPage1 "Reelora Prima Record  1/ 2      Title Non Sorted"
see focus cmdReset
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
