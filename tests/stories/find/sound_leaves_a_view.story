# Sound search in a view closes its file, begins anew at position 0 and keeps the view's kind, so that Next goes on with the view's first key.
film 1 Title="Film 1" Sound="Nobody"
film 2 Title="Film 2" Sound="Anna Karina"
film 3 Title="Film 3" Sound="Banana Split"
film 4 Title="Film 4" Sound="karina"
sorted
start
click mnuByTitle
click cmdNext
see state KeyFilePos 2
click mnuSound
input "Search For Sound" "Enter Sound To Search: \n\rTHX Dolby Etc." "karin"
see state CurrentRecNo 2
see state KeyFilePos 0
see state ViewKind "Title"
see frmPage1 "Reelora Prima Record  2/ 4      Title Sorted All Formats"
click cmdNext
see state KeyFilePos 1
see txtTitle "Film 1"
see lblHead "Viewing All Titles Alphabetically"
