# The hot key of page 1 hides the last field of an edited film, which saves and sorts; the film stays open.
films 1 2 Title="Film #" Format="D"
start
click cmdEdit
click optnoteson
click txtRatings
type "good"
key Alt+G
beep
beep
beep
beep
see film 1 Ratings "good"
see lblPage "PAGE 1"
see txtTitle.Visible yes
see txtRatings.Visible no
see state PageFlag 0
see state EditMode 1
see lblSorting ""
see lblSorting.Visible yes
