# A free last slot is taken and the collection does not grow.
film 1 Title="Alien"
film 2 Title="Brazil"
film 3
start
click cmdNew
see state CurrentRecNo 3
see state ScanRecNo 3
see state RecordCount 3
see frmPage1 "Reelora Record Prima 3/ 3"
see state NewPending 0
see txtTitle ""
type "Zulu"
click cmdSave
see film 3 Title "Zulu"
see length Recpra.Dat 1947
see frmPage1 "Reelora Prima Record  3/ 3      Title Non Sorted"
