# An auto save setting that is neither YES nor NO does not stop the flow of a new film.
file AutoSave "maybe\r\n"
films 1 2 Title="Film #" Format="D"
start
click cmdNew
type "Mirror"
click optnoteson
click txtRatings
click txtCost
beep
beep
beep
beep
see film 3 Title "Mirror"
see file Titlepra " 3\r\n"
see state NewMode 1
see state EditMode 0
see lblSorting ""
see file Last " 3 \r\n"
