# New in an empty collection takes slot 1.
start
click cmdNew
see state CurrentRecNo 1
see state RecordCount 1
see state NewPending 1
see frmPage1 "Reelora Record Prima 1/ 1"
see length Recpra.Dat 0
