# Reset of a new film on page 2 puts page 1 up, with its option selected.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdNew
click txtColor1
key Enter
see lblPage "PAGE 2"
click cmdReset
box question "Reelora Prima" "You have not saved your work.  To save it now hit Yes." No
see lblPage "PAGE 1"
see optNotesoff.Value yes
see txtTitle.Visible yes
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
