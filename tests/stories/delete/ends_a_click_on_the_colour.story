# A deletion ends what a click on the colour had left.
film 1 Title="49th Parallel, The" Format="V" Genre="WE"
film 2 Title="Area 49" Format="D" Genre="DR"
sorted
start
click mnuByDVD
see state EditMode 6
click txtColor1
click mnuSave
click txtColor1
box warning "Color/B & W" "Hit edit to change." OK
see state ClearOnShow 2
click cmdDelete
box question "Reelora Prima" "Are you sure you want to DELETE this record? This file will be removed permanently!!" Yes
see state ClearOnShow 0
