# If the sort stops, the last field has saved its film already, and "Last" has not been written.
films 1 2 Title="Film #" Format="D"
file Titlepra.Dat/x ""
start
click cmdEdit
click optnoteson
click txtRatings
type "fine"
key Tab
stop "Path/File access error"
see film 1 Ratings "fine"
see cmdPrevious.Enabled yes
see state EditMode 1
see state SortStarted 1
see missing Last
see state LastEntryRecNo ""
