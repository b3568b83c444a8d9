# A film without a format takes a line less: with one of them a page is full a line early, and one line is fed.
films 1 9 Title="Film #" Format="D"
film 3 Title="Film 3"
sorted
start
click mnuAll
box question "Reelora Prima Print Program" "If you have added any new records be sure to sort files before "
+ "printing!\n\nAre you sure you want to print all titles? The full list will take 1.125 pages to print." Yes
printed 2
beep
box warning "Reelora Prima Print Program" "End of file!   please wait. There are 2 pages to print." OK
see page 1 line 53 "                                     Page  1"
see page 1 lines 53
see page 2 line 5 "  Film 9                          (Dir.)                               REC #9"
