# A save of a new film closes it: no flag stays.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdNew
type "Casablanca"
see state EditMode 1
see state NewMode 1
see state ClearOnShow 1
click cmdSave
see state EditMode 0
see state NewMode 0
see state ClearOnShow 0
see state CountRollback 0
see state NewPending 0
see state NavFlag2 0
see txtTitle "Casablanca"
see frmPage1 "Reelora Prima Record  3/ 3      Title Non Sorted"
