# No leaves the page number set and the headline up; the next film shown brings the wait caption.
film 1 Title="Alpha" Format="D"
film 2 Title="Beta" Format="V"
sorted
clock 2026-11-21 09:05:07
start
click mnuAll
box question "Reelora Prima Print Program" "If you have added any new records be sure to sort files before "
+ "printing!\n\nAre you sure you want to print all titles? The full list will take 1" No
see lblHead "All Titles Full List Print Program"
see state PrintPending 1
see state ViewKind "Title"
see state ScanRecNo 0
see state PageEstimate "1"
see state PageEstimateTail ""
click cmdReset
see state PrintPending 0
see lblHead "To write a new record click \"New\" button or ALT \"W\""
