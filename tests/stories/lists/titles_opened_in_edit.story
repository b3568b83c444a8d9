# Title list opened in Edit: Delete stays off, and the keys end the edit.
films 1 20 Title="Film ##" Year="19##" Genre="DR" Format="D"
sorted
start
click cmdEdit
see cmdDelete.Enabled no
click mnuAllTitles
see state EditMode 0
see cmdDelete.Enabled no
see cmdMatch.Enabled yes
see cmdEdit.Enabled yes
see cmdSave.Enabled yes
