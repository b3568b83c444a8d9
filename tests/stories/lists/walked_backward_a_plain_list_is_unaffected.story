# After Back in a genre view a plain list is unaffected, except that it does not count its hits.
films 1 30 Title="Film ##" Genre="CO" Format="D"
sorted
start
click mnuFindGenre
input "Search For Genre" "Enter Genre To Search:  Use 2 Letter Abbreviation \n\rAA  Action Adventure\n\rCO  "
+ "Comedy\n\rDR  Drama" "co"
click cmdNext
click cmdPrevious
beep
box warning "" "Top of file encountered!" OK
see state NavDirection 1
click mnualldvd
see Text1(0) "Film 01"
see Text1(19) "Film 20"
see state HitCount 0
