# A blank title makes a slot free whatever else it contains.
film 1 Title="Alien"
film 2 Director="Nobody" Format="V" CLV1="CAV" Color1="Color" Rating="R" Letter="T" NumReel="2"
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
