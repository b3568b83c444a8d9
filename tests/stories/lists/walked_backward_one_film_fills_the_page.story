# After Back in a genre view a genre list walks backward: before a film of another genre the one before it comes
# again, row after row.
films 1 30 Title="Film ##" Genre="CO"
film 2 Title="Film 02" Genre="DR"
sorted
start
click mnuFindGenre
input "Search For Genre" "Enter Genre To Search:  Use 2 Letter Abbreviation \n\rAA  Action Adventure\n\rCO  "
+ "Comedy\n\rDR  Drama" "co"
click cmdNext
click cmdPrevious
beep
box warning "" "Top of file encountered!" OK
click mnuFindAllGenre
input "Search" "Enter Genre To Search:  Use 2 Letter Abreviation\n\rExamples\n\rAA  Action Adventure \n\rDR  "
+ "Drama\n\rCO  Comedy\n\rupper or lower case" "co"
see Text1(0) "Film 01"
see Text1(1) "Film 01"
see Text1(10) "Film 01"
see Text1(19) "Film 01"
see state KeyFilePos 1
see state RowCursor 20
