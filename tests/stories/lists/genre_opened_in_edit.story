# Genre list opened in Edit: Delete is to be had again, and the keys end the edit.
films 1 20 Title="Film ##" Year="19##" Genre="DR" Format="D"
sorted
start
click cmdEdit
see cmdDelete.Enabled no
click mnuFindAllGenre
input "Search" "Enter Genre To Search:  Use 2 Letter Abreviation\n\rExamples\n\rAA  Action Adventure \n\rDR  "
+ "Drama\n\rCO  Comedy\n\rupper or lower case" "dr"
see state EditMode 0
see cmdDelete.Enabled yes
see cmdMatch.Enabled yes
see cmdEdit.Enabled yes
see cmdSave.Enabled yes
