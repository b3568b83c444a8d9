# A film whose format was edited stays in the old format's file until the next sort.
film 1 Title="Ran" Format="V"
film 2 Title="Solaris" Format="D"
start
click mnuSort
beep
beep
beep
beep
click cmdReset
click cmdEdit
click txtFormat
pick List3 "DVD"
click cmdSave
see film 1 Format "D"
see file VHSpra " 1\r\n"
see key VHSpra.Dat 1 "Ran" 1
click mnuSort
beep
beep
beep
beep
see file VHSpra " 0\r\n"
see length VHSpra.Dat 0
see key DVDpra.Dat 1 "Ran" 1
