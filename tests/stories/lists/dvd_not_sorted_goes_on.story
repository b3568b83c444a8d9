# DVD list with a count of 0 says so and goes on nonetheless: the keys that there are fill it.
films 1 20 Title="Film ##" Year="19##" Genre="DR" Format="D"
sorted
count DVDpra 0
start
click mnualldvd
box warning "Reelora Prima" "Records have not been sorted.  Records must be sorted before records can viewed!" OK
see Text1(0) "Film 01"
see Text1(19) "Film 20"
see state ListState 2
see state ViewKind "DVD"
