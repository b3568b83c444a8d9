# The letter of the format is compared by weight, as the titles are.
film 1 Title="Ran" Format="v"
film 2 Title="Solaris" Format="x"
start
click mnuSort
beep
beep
beep
beep
see file VHSpra " 1\r\n"
see file Titlepra " 2\r\n"
see file DVDpra " 0\r\n"
