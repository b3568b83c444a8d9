# Title view of an empty key file has no words: the focus goes to the title, the heading stays.
film 1 Title="Alien"
count Titlepra 1
file Titlepra.Dat ""
start
click mnuByTitle
see focus txtTitle
see lblHead "    Viewing All Titles Alphabetically"
see state ViewKind "Title"
see state KeyFilePos 1
see state CurrentRecNo 1
see frmPage1 "Reelora Prima Record  1/ 1      Title Non Sorted"
click cmdNext
see focus txtTitle
see state KeyFilePos 2
