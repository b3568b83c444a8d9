# A free first slot is taken.
film 1
film 2 Title="Brazil"
film 3 Title="Casablanca"
start
click cmdNew
see state CurrentRecNo 1
see state ScanRecNo 1
see state RecordCount 3
see frmPage1 "Reelora Record Prima 1/ 3"
see state NewPending 0
see txtTitle ""
type "Zulu"
click cmdSave
see film 1 Title "Zulu"
see length Recpra.Dat 1947
see frmPage1 "Reelora Prima Record  1/ 3      Title Non Sorted"
