# The full list behind a title view of an empty key file goes on at its first key, where the end is: no film is printed.
film 1 Title="Alien" Format="D"
count Titlepra 1
file Titlepra.Dat ""
start
click mnuByTitle
see state KeyFilePos 1
click mnuAll
box question "Reelora Prima Print Program" "If you have added any new records be sure to sort files before "
+ "printing!\n\nAre you sure you want to print all titles? The full list will take 1" Yes
printed 1
beep
box warning "Reelora Prima Print Program" "End of file!   please wait. There is 1 Page to print." OK
see page 1 line 6 "  TOTAL FILM(S) IN LIBRARY   0"
