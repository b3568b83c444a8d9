# The write fails: the note is already there, the film is still open, the count is that of before.
film 1 Title="Alien" Format="D"
file Last "-1\r\n"
start
click mnuLastEntry
see frmPage1 "Reelora Prima Record -1/ 1      Title Non Sorted"
click cmdEdit
click txtTitle
clear
type "The Fly"
click cmdSave
stop "Bad record number"
see lblSave.Visible yes
see state EditMode 1
see state TitleEnd 8
see state RecordCount 1
see txtTitle "The Fly"
see film 1 Title "Alien"
