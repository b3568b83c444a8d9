# Find Last Record shows the highest slot.
films 1 3 Title="Film #"
start
click mnuLast
see txtTitle "Film 3"
see lblHead "    Viewing Last File Entered"
see frmPage1 "Reelora Prima Record  3/ 3      Title Non Sorted"
see state CurrentRecNo 3
see state ScanRecNo 3
see state ViewKind ""
see state RecordFound 0
click cmdNext
beep
box warning "" "End of file encountered!" OK
