# Edit during a new film shows the blank film again: what was typed is gone, and the film is still new.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="L"
start
click cmdNew
type "Zulu"
key Alt+E
see focus cmdEdit
see txtTitle ""
see state EditMode 1
see state NewMode 1
see state ClearOnShow 1
see frmPage1 "Reelora Prima Record  3/ 3      Title Non Sorted"
see lblHead.Visible no
see cmdDelete.Enabled no
see lblSorting "\r\n\r\n          Save Work When Finished!"
key Alt+S
see film 3 Title ""
see length Recpra.Dat 1947
see state NewMode 0
