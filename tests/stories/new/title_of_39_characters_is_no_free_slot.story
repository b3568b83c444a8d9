# A title of 39 characters and a blank is no free slot.
film 1 Title="Alien"
film 2 Title="123456789012345678901234567890123456789"
film 3 Title="Casablanca"
start
click cmdNew
see state CurrentRecNo 4
see state ScanRecNo 4
see state RecordCount 4
see frmPage1 "Reelora Record Prima 4/ 4"
see state NewPending 0
see txtTitle ""
type "Zulu"
click cmdSave
see film 4 Title "Zulu"
see length Recpra.Dat 2596
see frmPage1 "Reelora Prima Record  4/ 4      Title Non Sorted"
