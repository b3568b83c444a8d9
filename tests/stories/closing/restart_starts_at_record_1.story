# A start shows record 1, whatever was on the screen when the program was stopped.
films 1 3 Title="Film #"
start
click cmdNext
click cmdNext
restart
see txtTitle "Film 1"
see state CurrentRecNo 1
see state ViewKind ""
