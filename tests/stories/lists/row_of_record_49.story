# The tape of record 49 shows its letter in its row, for its scratch value is neither 0 nor 1; paging back writes the
# word.
films 1 80 Title="Film ##" Format="V" Genre="CO"
film 50 Title="Film 50" Format="L" Genre="CO"
film 52 Title="Film 52" Format="D" Genre="CO"
sorted
start
click mnuAllTitles
click cmdNext20
click cmdNext20
see Text1(8) "Film 49"
see Text3(8) "V"
see Text3(7) "VHS"
see Text3(9) "Laser"
click cmdNext20
click cmdPrev20
see Text1(8) "Film 49"
see Text3(8) "VHS"
