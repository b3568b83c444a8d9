# A click in view on the format that has the focus already brings a plain box, and the focus stays.
film 1 Title="49th Parallel, The" Format="V" Genre="WE"
film 2 Title="Area 49" Format="D" Genre="DR"
sorted
start
click mnuByDVD
see state EditMode 6
click txtFormat
see focus txtFormat
click mnuSave
see state EditMode 0
click txtFormat
box none "" "Hit Edit To Change" OK
see focus txtFormat
see List3.Visible no
