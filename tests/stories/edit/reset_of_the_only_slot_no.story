# Reset of a new film in the only slot, answered No, leaves the count.
film 1 Title="Alien"
start
click cmdNew
type "Zulu"
click cmdReset
box question "Reelora Prima" "You have not saved your work.  To save it now hit Yes." No
see file Recpra.Dat "Alien                                                                                           "
+ "                                                                                                                  "
+ "                                                                                                                  "
+ "                                                                                                                  "
+ "                                                                                                                  "
+ "                                                                                               \r\n"
see state RecordCount 1
see state NewPending 0
see txtTitle "Alien"
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
