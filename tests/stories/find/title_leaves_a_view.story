# Title search in a view closes its file, starts again at position 0 and keeps the view's kind, so that Next does
# nothing.
film 1 Title="Nobody"
film 2 Title="Anna Karina"
film 3 Title="Banana Split"
film 4 Title="karina"
sorted
start
click mnuByTitle
click cmdNext
see state KeyFilePos 2
click mnuFindTitle
input "Search For Title" "Enter Title. To Search: " "karin"
see state CurrentRecNo 2
see state KeyFilePos 0
see state ViewKind "Title"
see frmPage1 "Reelora Prima Record  2/ 4      Title Sorted All Formats"
click cmdNext
see state CurrentRecNo 2
see state KeyFilePos 0
