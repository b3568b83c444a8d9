# Title view opened in Edit: the key's scratch value ends the edit with no question, and Back is to be had again.
film 1 Title="Zulu" Format="D"
film 2 Title="Alien" Format="D"
sorted
start
click cmdEdit
see cmdPrevious.Enabled no
click mnuByTitle
see txtTitle "Alien"
see state EditMode 0
see cmdPrevious.Enabled yes
see cmdNext.Enabled no
