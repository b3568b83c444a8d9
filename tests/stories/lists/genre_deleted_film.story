# Genre list shows what the records hold now: a deleted film is a row without a title, a changed one has its new
# words.
films 1 20 Title="Film ##" Year="19##" Genre="DR" Format="D"
sorted
film 2 Title=""
film 3 Title="Zulu" Year="1964" Genre="DR" Format="V"
start
click mnuFindAllGenre
input "Search" "Enter Genre To Search:  Use 2 Letter Abreviation\n\rExamples\n\rAA  Action Adventure \n\rDR  "
+ "Drama\n\rCO  Comedy\n\rupper or lower case" "dr"
beep
box none "" "End of file!" OK
see Text1(0) "Film 01"
see Text1(1) "Zulu"
see Text1(18) "Film 20"
see Text1(19) ""
