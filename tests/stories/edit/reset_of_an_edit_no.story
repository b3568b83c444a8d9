# Reset of an edit, answered No: the changes are gone, the file is as it was.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdNext
click cmdEdit
click txtDirector
type "Nobody"
click cmdReset
box question "Reelora Prima" "You have not saved your work.  To save it now hit Yes." No
see state PromptText "You have not saved your work.  To save it now hit Yes."
see txtTitle "Alien"
see file Recpra.Dat "Alien                                                                                           "
+ "                                                                                                                  "
+ "                                                       V                                                          "
+ "                                                                                                                  "
+ "                                                                                                                  "
+ "                                                                                               \r\n"
+ "Brazil                                                                                                            "
+ "                                                                                                                  "
+ "                                     V                                                                            "
+ "                                                                                                                  "
+ "                                                                                                                  "
+ "                                                                             \r\n"
click cmdNext
see txtDirector ""
click cmdPrevious
click cmdReset
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
