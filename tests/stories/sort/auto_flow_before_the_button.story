# The button pressed from the last field of an edited film sorts twice: the field's flow comes first.
films 1 2 Title="Film #" Format="D"
start
click cmdEdit
click optnoteson
click txtRatings
type "good"
click cmdSort
beep
beep
beep
beep
beep
beep
beep
beep
box question "Reelora Prima" "You have not saved your work.  To save it now hit Yes." No
see film 1 Ratings "good"
see file Last " 1 \r\n"
see state ViewKind ""
