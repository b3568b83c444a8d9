# No leaves the page number set, the headline up and the kind of view.
film 1 Title="Metropolis" Format="L"
sorted
clock 2026-11-21 09:05:07
start
click mnuShort
box question "Reelora Prima Print Program" "Are you sure you want to Print Abridged List?,  This List only prints Title, Date, Genre and Format. It will take 1 page to print." No
see lblHead "All Titles Abridged Print Program"
see state PrintPending 1
see state FirstRecordAdjust 1
see state ViewKind "Title"
