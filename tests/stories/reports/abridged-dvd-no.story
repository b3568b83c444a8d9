# No leaves the page number set, the headline up and the kind of view.
film 1 Title="Metropolis" Format="D"
sorted
clock 2026-11-21 09:05:07
start
click mnuDVD
box question "Reelora Prima Print Program" "Do you want to print DVD disc library?  This list only prints Title, Date, Genre and Format. It will take 1 page to print." No
see lblHead "All DVD Titles Abridged Print Program"
see state PrintPending 1
see state FirstRecordAdjust 1
see state ViewKind "DVDpra"
