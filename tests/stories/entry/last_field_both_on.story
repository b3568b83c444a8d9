# With both settings on the last field of a new film saves, sorts and brings page 1 back.
file AutoSave "YES\r\n"
file AutoSort "YES\r\n"
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdNew
type "Casablanca"
click optnoteson
click txtRatings
see cmdPrevious.Enabled no
key Tab
beep
beep
beep
beep
see focus cmdSave
see film 3 Title "Casablanca"
see length Recpra.Dat 1947
see state EditMode 0
see state NewMode 0
see state ClearOnShow 0
see state ViewKind "DVDpra"
see frmPage1 "Reelora Prima Record  3/ 3"
see lblPage "PAGE 1"
see lblSave.Visible no
see lblSorting ""
see lblSorting.Visible no
see cmdPrevious.Enabled yes
see cmdNext.Enabled yes
see lblsorted "No. Titles  3  -    No. DVDS  0  -    No.Laser discs  0  -    No.VHS  2"
see state TitleCount "3"
see state VHSCount "2"
see file Last " 3 \r\n"
see state LastEntryRecNo "3"
see key Titlepra.Dat 3 "Casablanca" 3
