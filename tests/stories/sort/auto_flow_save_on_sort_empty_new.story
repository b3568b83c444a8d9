# The empty line that a No to Auto Sort writes leaves that box as it is, and counts as off.
film 1 Title="Solaris" Format="D"
film 2 Title="alien" Format="L"
film 3 Title="Ran" Format="V"
film 4 Title="Brazil" Format="V"
film 5 Title="Zelig" Format="D"
file AutoSave "YES\r\n"
file AutoSort "\r\n"
start
click cmdNew
type "Mirror"
click optnoteson
click txtRatings
key Tab
beep
beep
beep
beep
see film 6 Title "Mirror"
see file Titlepra " 6\r\n"
see key Titlepra.Dat 3 "Mirror" 6
see state TitleCount "6"
see lblsorted "No. Titles  6  -    No. DVDS  2  -    No.Laser discs  1  -    No.VHS  2"
see state ViewKind "DVDpra"
see state SortStarted 1
see file Last " 6 \r\n"
see state LastEntryRecNo "6"
see cmdPrevious.Enabled yes
see state AutoSortSetting ""
see state NewMode 1
see lblPage "PAGE 2"
see lblSorting ""
