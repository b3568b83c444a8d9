# Of several free slots the lowest is taken.
film 1 Title="Alien"
film 2
film 3 Title="Casablanca"
film 4
film 5 Title="Dune"
start
click cmdNew
see state CurrentRecNo 2
see state ScanRecNo 2
see state RecordCount 5
see frmPage1 "Reelora Record Prima 2/ 5"
see state NewPending 0
see txtTitle ""
type "Zulu"
click cmdSave
see film 2 Title "Zulu"
see length Recpra.Dat 3245
see frmPage1 "Reelora Prima Record  2/ 5      Title Non Sorted"
