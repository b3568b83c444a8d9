# A list opened in Edit: Delete stays off, and the keys end the edit.
each LIST   FORMAT MENU         ENABLED
row  titles D      mnuAllTitles no
row  dvd    D      mnualldvd    yes
row  laser  L      mnualllas    yes
row  vhs    V      mnuAllVHS    yes

films 1 20 Title="Film ##" Year="19##" Genre="DR" Format="{FORMAT}"
sorted
start
click cmdEdit
see cmdDelete.Enabled no
click {MENU}
see state EditMode 0
see cmdDelete.Enabled {ENABLED}
see cmdMatch.Enabled yes
see cmdEdit.Enabled yes
see cmdSave.Enabled yes
