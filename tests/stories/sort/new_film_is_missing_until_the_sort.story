# A title that was edited keeps its old name until the next sort.
film 1 Title="Solaris" Format="D"
film 2 Title="alien" Format="L"
film 3 Title="Ran" Format="V"
film 4 Title="Brazil" Format="V"
film 5 Title="Zelig" Format="D"
start
click mnuSort
beep
beep
beep
beep
click cmdReset
click cmdEdit
click txtTitle
clear
type "Mirror"
click cmdSave
see key Titlepra.Dat 4 "Solaris" 1
see lblsorted "No. Titles  5  -    No. DVDS  2  -    No.Laser discs  1  -    No.VHS  2"
click mnuSort
beep
beep
beep
beep
see key Titlepra.Dat 3 "Mirror" 1
see key DVDpra.Dat 1 "Mirror" 1
