# The view of the same kind chosen while its list is up shows the last row's film and leaves the rows where they are.
films 1 45 Title="Film ##" Genre="DR" Format="D"
sorted
start
click mnuAllTitles
click mnuByTitle
see txtTitle "Film 20"
see state KeyFilePos 20
see state ViewState 2
see Text1(0).Visible yes
