# Find By File No. shows the film of that number and walks on from there.
films 1 5 Title="Film #" Genre="SF"
start
click mnuFile
input "Reelora Prima" "Enter File No To Search:" "3"
see txtTitle "Film 3"
see lblHead "    Viewing All Files Numerically"
see frmPage1 "Reelora Prima Record  3/ 5      Title Non Sorted"
see state CurrentRecNo 3
see state ScanRecNo 3
see state KeyFilePos 0
see state ViewKind ""
see state RecordFound 1
see state MasterFileNo 1
see cmdPrevious.Enabled yes
click cmdNext
see txtTitle "Film 4"
click cmdPrevious
click cmdPrevious
see txtTitle "Film 2"
