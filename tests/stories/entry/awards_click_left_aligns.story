# A click on the awards left-aligns them while the film is open.
film 1 Title="49th Parallel, The" Format="V" Genre="WE"
film 2 Title="Area 49" Format="D" Genre="DR"
sorted
start
click mnuByDVD
see state EditMode 6
click optnoteson
click txtAwards
see focus txtAwards
click mnuByTitle
see state EditMode 1
see txtAwards.Alignment centre
click txtAwards
see txtAwards.Alignment left
