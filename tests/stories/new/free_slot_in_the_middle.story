# A free slot in the middle is taken and the count stays.
film 1 Title="Alien"
film 2
film 3 Title="Casablanca"
start
click cmdNew
see state CurrentRecNo 2
see state ScanRecNo 2
see state RecordCount 3
see frmPage1 "Reelora Record Prima 2/ 3"
see state NewPending 0
see txtTitle ""
type "Zulu"
click cmdSave
see film 2 Title "Zulu"
see length Recpra.Dat 1947
see frmPage1 "Reelora Prima Record  2/ 3      Title Non Sorted"
