# A count of 0 is refused after the figure is reckoned, and Reset follows.
film 1 Title="Metropolis" Format="L"
clock 2026-11-21 09:05:07
start
click mnuShort
box warning "Reelora Prima Print Program" "Records have not been sorted.  Records must be sorted before a report can be written!" OK
see state PageEstimate "1"
see state PageEstimateTail " page to print."
see state PrintPending 0
see state ViewKind ""
see lblHead "To write a new record click \"New\" button or ALT \"W\""
