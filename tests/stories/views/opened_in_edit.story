# A view opened in Edit: the key's scratch value ends the edit without a question, and Back is enabled again.
each VIEW  FORMAT MENU
row  title D      mnuByTitle
row  dvd   D      mnuByDVD
row  laser L      mnuByLaser
row  vhs   V      mnuByVHS

film 1 Title="Zulu" Format="{FORMAT}"
film 2 Title="Alien" Format="{FORMAT}"
sorted
start
click cmdEdit
see cmdPrevious.Enabled no
click {MENU}
see txtTitle "Alien"
see state EditMode 0
see cmdPrevious.Enabled yes
see cmdNext.Enabled no
