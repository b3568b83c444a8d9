# A click on the rating that has the focus shows its list, which gets the focus.
film 1 Title="49th Parallel, The" Format="V" Genre="WE"
film 2 Title="Area 49" Format="D" Genre="DR"
sorted
start
click mnuByDVD
see state EditMode 6
click optnoteson
click txtRating
see focus txtRating
see List2.Visible no
click mnuByTitle
see state EditMode 1
click txtRating
see List2.Visible yes
see List2.Items
see focus List2
