# DVD view whose count becomes 0 on the way ends at the next step.
films 1 3 Title="Film ##" Format="D"
sorted
start
click mnuByDVD
count DVDpra 0
click cmdNext
box warning "Reelora Prima" "Records have not been sorted.  Records must be sorted before records can viewed!" OK
see state ViewKind ""
see state CurrentRecNo 1
