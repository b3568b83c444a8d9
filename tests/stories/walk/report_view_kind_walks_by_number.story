# The kind that a refused DVD report leaves belongs to no view: Next shows the same film again, Back goes by number.
film 1 Title="Alien" Format="D"
film 2 Title="Brazil" Format="D"
film 3 Title="Cabaret" Format="D"
sorted
start
click cmdNext
click mnuDVD
box question ANY ANY No
see state ViewKind "DVDpra"
click cmdNext
see state CurrentRecNo 2
see txtTitle "Brazil"
see frmPage1 "Reelora Prima Record  2/ 3"
click cmdPrevious
see txtTitle "Alien"
see frmPage1 "Reelora Prima Record  1/ 3"
