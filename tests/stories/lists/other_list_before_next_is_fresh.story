# Another list chosen on the first page begins at its own first key.
films 1 60 Title="Film ##" Genre="DR" Format="D"
film 1 Title="Film 01" Genre="DR" Format="V"
sorted
start
click mnuAllTitles
see Text1(0) "Film 01"
click mnualldvd
see Text1(0) "Film 02"
see Text1(19) "Film 21"
see state ViewKind "DVD"
see state PageMode 0
