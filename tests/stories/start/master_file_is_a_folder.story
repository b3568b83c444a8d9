# Where the master file cannot be opened, the title bar still shows the zeros from before the first record.
file Recpra.Dat/x ""
start
stop "Path/File access error"
see frmPage1 "Reelora Prima Record  0/ 0"
see frmPage1.Visible no
see state CurrentRecNo 1
see state RecordCount 0
see state MasterFileNo 1
see state ViewState 1
see lblPage "PAGE 1"
