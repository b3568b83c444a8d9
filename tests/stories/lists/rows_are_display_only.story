# The rows are display only: a click on one moves the focus there and nothing else.
films 1 20 Title="Film ##"
sorted
start
click mnuAllTitles
click Text1(3)
see focus Text1(3)
see Text1(3) "Film 04"
see state RowCursor 20
see txtTitle "Film 20"
