# A save hides an aspect list that is still up.
film 1 Title="49th Parallel, The" Format="V" Genre="WE"
film 2 Title="Area 49" Format="D" Genre="DR"
sorted
start
click mnuByDVD
see state EditMode 6
click txtLetter
click mnuByTitle
click txtLetter
see List4.Visible yes
click mnuSave
see List4.Visible no
