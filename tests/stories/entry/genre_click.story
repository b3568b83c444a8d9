# A click on the genre that has the focus shows the list, hides what it covers and reminds to save.
film 1 Title="49th Parallel, The" Format="V" Genre="WE"
film 2 Title="Area 49" Format="D" Genre="DR"
sorted
start
click mnuByDVD
see state EditMode 6
click txtGenre
see focus txtGenre
click mnuByTitle
see state EditMode 1
click txtGenre
see focus txtGenre
see List1.Visible yes
see List1.Items
see txtCLV1.Visible no
see txtColor1.Visible no
see lblSelect.Visible yes
see lblSorting.Visible yes
see lblSorting "Save Work When Finished!"
