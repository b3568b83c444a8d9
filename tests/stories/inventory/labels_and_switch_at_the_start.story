# The labels that the program writes, the page switch and the status boxes when the window has come up.
film 1 Title="Alien" Format="V"
start
see lblHead "To write a new record click \"New\" button or ALT \"W\""
see lblHead.Visible yes
see lblsorted "No. Titles  0 -    No. DVDS  0 -    No.Laser discs  0 -    No.VHS 0"
see lblsorted.Visible yes
see lblPage "PAGE 1"
see lblPage.Visible yes
see lblSorting ""
see lblSorting.Visible no
see lblSave "    Your Work Has Been Saved!"
see lblSave.Visible no
see lblSelect "Arrow or click down for selection.  Click or press <Enter> to make selection. "
see lblSelect.Visible no
see lblEnter "Scroll or click for Color or B-W selection and Hit \"Enter\" to Continue to the next page!"
see lblEnter.Visible no
see lblNumrec ""
see lblNumrec.Visible yes
see lblRetcode ""
see lblRetcode.Visible yes
see lblNotes1 ""
see optNotesoff "PA&GE 1"
see optNotesoff.Value yes
see optNotesoff.Visible yes
see optnoteson "PA&GE 2"
see optnoteson.Value no
see optnoteson.Visible yes
see txtAutoSave "Auto Save Off"
see txtAutoSave.Enabled no
see txtAutoSort "Auto Sort Off"
see txtAutoSort.Enabled no
see lblSorting.FontSize 9.75
see txtTitle.FontSize 12
see txtLabel.FontSize 9.75
see lblTitle.FontSize 8.25
see lblCinematographer.FontSize 9
see cmdSave.FontSize 9.75
see cmdMatch.FontSize 9
see Toolbar1.Visible yes
