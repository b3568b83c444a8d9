# No leaves the page number set, the headline up and the kind of view.
film 1 Title="Metropolis" Format="V"
sorted
clock 2026-11-21 09:05:07
start
click mnuVHS
box question "Reelora Prima Print Program" "Do you want to print VHS library?  This list only prints Title, Date, Genre and Format. It will take 1 page to print." No
see lblHead "All VHS Titles Abridged Print Program"
see state PrintPending 1
see state FirstRecordAdjust 1
see state ViewKind "VHS"
