# Reset of a new film, answered No: nothing is written, and the count stays one too high until the next start.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdNew
type "Zulu"
click cmdReset
box question "Reelora Prima" "You have not saved your work.  To save it now hit Yes." No
see length Recpra.Dat 1298
see txtTitle "Alien"
see state RecordCount 3
see frmPage1 "Reelora Prima Record  1/ 3      Title Non Sorted"
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
restart
see state RecordCount 2
