# The first save of a new collection counts two slots for one film, and the next New takes the second.
start
see state RecordCount 1
click cmdNew
see state CurrentRecNo 1
type "Alien"
click cmdSave
see state RecordCount 2
see state FirstRecordAdjust 1
see length Recpra.Dat 649
see frmPage1 "Reelora Prima Record  1/ 2      Title Non Sorted"
click cmdNew
see state CurrentRecNo 2
see state RecordCount 2
see frmPage1 "Reelora Record Prima 2/ 2"
type "Brazil"
click cmdSave
see state FirstRecordAdjust 0
see state RecordCount 2
see length Recpra.Dat 1298
click cmdNew
see state CurrentRecNo 3
see state RecordCount 3
type "Casablanca"
click cmdSave
see state FirstRecordAdjust 0
see length Recpra.Dat 1947
