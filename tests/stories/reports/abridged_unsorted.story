# An abridged list with a count of 0 is refused after the pages are estimated; Reset follows.
each REPORT         FORMAT MENU     TEXT
row  abridged-dvd   D      mnuDVD   "DVD Records have not been sorted, or there are no records to sort"
row  abridged-vhs   V      mnuVHS   "VHS Records have not been sorted, or there are no records to sort"
row  abridged-all   L      mnuShort "Records have not been sorted"
row  abridged-laser L      mnuLaser "Laser Records have not been sorted, or there are no records to sort"

film 1 Title="Metropolis" Format="{FORMAT}"
clock 2026-11-21 09:05:07
start
click {MENU}
box warning "Reelora Prima Print Program" "{TEXT}.  Records must be sorted before a report can be written!" OK
see state PageEstimate "1"
see state PageEstimateTail " page to print."
see state PrintPending 0
see state ViewKind ""
see lblHead "To write a new record click \"New\" button or ALT \"W\""
