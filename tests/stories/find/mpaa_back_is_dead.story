# MPAA search: Back does nothing until the reset but set its help topic; Next goes on by number.
film 1 Title="Film 1" Rating="R"
film 2 Title="Film 2" Rating="PG"
film 3 Title="Film 3" Rating="PG-13"
film 4 Title="Film 4" Rating="pg"
start
click mnuMPAA
input "Search For MPAA or TV Ratings" "Enter Ratings To Search: " "pg"
click cmdPrevious
see state CurrentRecNo 2
see frmPage1.HelpContext 260
click cmdNext
see state CurrentRecNo 3
see txtTitle "Film 3"
click cmdReset
click cmdNext
see state CurrentRecNo 2
click cmdPrevious
see state CurrentRecNo 1
