# What New shows: an empty page 1 with its message, no heading, the cursor in the title.
film 1 Title="Alien" Format="V" Rating="R"
film 2 Title="Brazil"
start
click cmdEdit
click cmdSave
see lblSave.Visible yes
click cmdNew
see lblSave.Visible no
see state EditMode 1
see state NewMode 1
see state ClearOnShow 1
see state PageFlag 0
see cmdNext.Enabled no
see cmdPrevious.Enabled no
see cmdSave.Enabled yes
see lblSorting.Visible yes
see lblSorting "You are inputting onto page 1.   When all entries on this page are complete,  page 2  will come up "
+ "automatically."
see lblHead ""
see lblPage "PAGE 1"
see txtCLV1.Visible yes
see txtColor1.Visible yes
see focus txtTitle
see frmPage1.HelpContext 1
