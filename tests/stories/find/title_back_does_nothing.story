# Title search: Back does nothing until the reset but set its help topic; so does Next.
film 1 Title="Nobody"
film 2 Title="Anna Karina"
film 3 Title="Banana Split"
film 4 Title="karina"
start
click mnuFindTitle
input "Search For Title" "Enter Title. To Search: " "karin"
click cmdPrevious
see state CurrentRecNo 2
see frmPage1.HelpContext 260
click cmdNext
see state CurrentRecNo 2
see frmPage1.HelpContext 240
click cmdReset
click cmdNext
see state CurrentRecNo 2
click cmdPrevious
see state CurrentRecNo 1
