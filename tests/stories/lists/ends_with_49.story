# A list whose last title begins with 49 leaves EditMode at 1, so that the reset at its end asks about unsaved work.
each LIST   FORMAT MENU
row  titles D      mnuAllTitles
row  dvd    D      mnualldvd
row  laser  L      mnualllas
row  vhs    V      mnuAllVHS

film 1 Title="49th Parallel" Genre="DR" Format="{FORMAT}"
sorted
start
click {MENU}
beep
box none "" "End of file!" OK
box question "Reelora Prima" "You have not saved your work.  To save it now hit Yes." No
see state EditMode 0
see film 1 Title "49th Parallel"
