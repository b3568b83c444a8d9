# A slot without a title that still has a format letter is in the file of the format, and not among all titles.
film 1 Title="Ran" Format="V"
film 2 Director="Nobody" Format="V"
film 3 Director="Nobody"
start
click mnuSort
beep
beep
beep
beep
see file Titlepra " 1\r\n"
see file VHSpra " 2\r\n"
see key VHSpra.Dat 1 "" 2
see key VHSpra.Dat 2 "Ran" 1
