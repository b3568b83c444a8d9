# Awards search: Back does nothing until the reset but set its help topic; Next goes on by number.
film 1 Title="Film 1" Awards="Nobody"
film 2 Title="Film 2" Awards="Anna Karina"
film 3 Title="Film 3" Awards="Banana Split"
film 4 Title="Film 4" Awards="karina"
start
click mnuAwards
input "Search For Awards" "Enter Awards To Search: " "karin"
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
