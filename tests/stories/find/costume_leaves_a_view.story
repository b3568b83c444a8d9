# Costume search in a view closes its file, begins anew at position 0 and keeps the view's kind, so that Next goes on with the view's first key.
film 1 Title="Film 1" Costume="Nobody"
film 2 Title="Film 2" Costume="Anna Karina"
film 3 Title="Film 3" Costume="Banana Split"
film 4 Title="Film 4" Costume="karina"
sorted
start
click mnuByTitle
click cmdNext
see state KeyFilePos 2
click mnuCostume
input "Search For Costume Designer" "Enter Costume Designer To Search: " "karin"
see state CurrentRecNo 2
see state KeyFilePos 0
see state ViewKind "Title"
see frmPage1 "Reelora Prima Record  2/ 4      Title Sorted All Formats"
click cmdNext
see state KeyFilePos 1
see txtTitle "Film 1"
see lblHead "Viewing All Titles Alphabetically"
