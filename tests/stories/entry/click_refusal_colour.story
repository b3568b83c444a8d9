# A click in view on the colour that has the focus already is refused under a title of its own, and Save gets the
# focus.
film 1 Title="49th Parallel, The" Format="V" Genre="WE"
film 2 Title="Area 49" Format="D" Genre="DR"
sorted
start
click mnuByDVD
see state EditMode 6
click txtColor1
see focus txtColor1
click mnuSave
see state ClearOnShow 0
click txtColor1
box warning "Color/B & W" "Hit edit to change." OK
see focus cmdSave
see state ClearOnShow 2
see List6.Visible no
