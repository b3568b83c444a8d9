# A click on the format that has the focus shows the list and leaves it empty.
film 1 Title="49th Parallel, The" Format="V" Genre="WE"
film 2 Title="Area 49" Format="D" Genre="DR"
sorted
start
click mnuByDVD
see state EditMode 6
click txtFormat
click mnuByTitle
see state EditMode 1
see List3.Visible no
click txtFormat
see List3.Visible yes
see List3.Items
see focus txtFormat
