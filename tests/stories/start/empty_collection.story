# A missing master file is made empty; the screen reckons with one record and shows empty fields.
start
see length Recpra.Dat 0
see state RecordCount 1
see state CurrentRecNo 1
see frmPage1 "Reelora Prima Record  1/ 1      Title Non Sorted"
see txtTitle ""
see txtDirector ""
see focus cmdSave
see lblHead "To write a new record click \"New\" button or ALT \"W\""
see lblsorted "No. Titles  0 -    No. DVDS  0 -    No.Laser discs  0 -    No.VHS 0"
see lblPage "PAGE 1"
see state ViewState 1
see state MasterFileNo 1
see frmPage1.HelpContext 220
