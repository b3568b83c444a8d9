# A sort from the menu leaves the open film open, with the focus and what was typed; it sorts the file as it is.
film 1 Title="Alien" Format="D"
start
click cmdEdit
click txtTitle
type "s"
click mnuSort
beep
beep
beep
beep
see key Titlepra.Dat 1 "Alien" 1
see state EditMode 1
see txtTitle "Aliens"
see focus txtTitle
see frmPage1.HelpContext 260
see lblSorting ""
see lblSorting.Visible yes
click cmdSave
see film 1 Title "Aliens"
see frmPage1 "Reelora Prima Record  1/ 2"
