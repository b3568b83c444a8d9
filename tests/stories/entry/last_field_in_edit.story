# In Edit the last field saves and sorts whatever the settings say, and the film stays open.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdNext
click cmdEdit
click optnoteson
click txtRatings
type "Five stars"
see cmdPrevious.Enabled no
key Tab
beep
beep
beep
beep
see film 2 Ratings "Five stars"
see state EditMode 1
see state ViewKind "DVDpra"
see cmdPrevious.Enabled yes
see cmdNext.Enabled no
see focus optnoteson
see lblPage "PAGE 2"
see file Last " 2 \r\n"
see key VHSpra.Dat 2 "Brazil" 2
