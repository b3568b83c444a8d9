# Once read, the number of the last entry is kept: with "Last" gone the jump goes there again.
films 1 4 Title="Film #"
file Last "3\r\n"
start
click mnuLastEntry
see state CurrentRecNo 3
remove Last
click cmdPrevious
see state CurrentRecNo 2
click mnuLastEntry
see state LastEntryRecNo "3"
see txtTitle "Film 3"
