# Capitals and accented letters are folded; equal titles stand in the order of their records, and keep their case.
film 1 Title="solaris" Format="D"
film 2 Title="SOLARIS" Format="D"
film 3 Title="élan" Format="D"
film 4 Title="Élan" Format="D"
film 5 Title="zelig" Format="D"
film 6 Title="Solaris" Format="D"
film 7 Title="Zelig 2" Format="D"
start
click mnuSort
beep
beep
beep
beep
see key DVDpra.Dat 1 "solaris" 1
see key DVDpra.Dat 2 "SOLARIS" 2
see key DVDpra.Dat 3 "Solaris" 6
see key DVDpra.Dat 4 "zelig" 5
see key DVDpra.Dat 5 "Zelig 2" 7
see key DVDpra.Dat 6 "élan" 3
see key DVDpra.Dat 7 "Élan" 4
see key Titlepra.Dat 7 "Élan" 4
