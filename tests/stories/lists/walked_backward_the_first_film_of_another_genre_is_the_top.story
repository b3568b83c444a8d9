# After Back in a genre view a genre list walks backward: a first film of another genre is its top.
films 1 30 Title="Film ##" Genre="CO"
film 2 Title="Film 02" Genre="DR"
sorted
start
click mnuFindGenre
input "Search For Genre" "Enter Genre To Search:  Use 2 Letter Abbreviation \n\rAA  Action Adventure\n\rCO  "
+ "Comedy\n\rDR  Drama" "co"
click cmdNext
see state KeyFilePos 3
click cmdPrevious
beep
box warning "" "Top of file encountered!" OK
see state NavDirection 1
click mnuFindAllGenre
input "Search" "Enter Genre To Search:  Use 2 Letter Abreviation\n\rExamples\n\rAA  Action Adventure \n\rDR  "
+ "Drama\n\rCO  Comedy\n\rupper or lower case" "dr"
beep
box warning "" "Top of file encountered!" OK
see state KeyFilePos 0
see state NavDirection 1
see state HitCount 0
see state ListState 0
