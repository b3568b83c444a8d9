# A click on the aspect that has the focus shows and fills its list, and the focus stays.
film 1 Title="49th Parallel, The" Format="V" Genre="WE"
film 2 Title="Area 49" Format="D" Genre="DR"
sorted
start
click mnuByDVD
see state EditMode 6
click txtLetter
see focus txtLetter
see List4.Visible no
click mnuByTitle
see state EditMode 1
click txtLetter
see focus txtLetter
see List4.Visible yes
see List4.Items "Wide Screen" "Pan & Scan" "TV 1.33:1"
see txtLetter "Wide Screen"
