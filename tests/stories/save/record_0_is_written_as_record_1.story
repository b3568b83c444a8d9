# A film that is shown under the number 0 is saved as record 1.
film 1 Title="Alien" Format="D"
film 2 Title="Brazil" Format="D"
file Last " 0 \r\n"
start
click mnuLastEntry
see state CurrentRecNo 0
see frmPage1 "Reelora Prima Record  0/ 2      Title Non Sorted"
click cmdEdit
click txtTitle
type "s"
click cmdSave
see state CurrentRecNo 1
see film 1 Title "Aliens"
see frmPage1 "Reelora Prima Record  1/ 2      Title Non Sorted"
