# The title bar and the heading of each view.
each VIEW  KIND  CAPTION                              HEADING
row  dvd   DVD   "1/ 4        DVD  Sorted"            "Viewing All DVD Titles Alphabetically"
row  laser Laser "4/ 4      Laser Sorted"             "Viewing All Laser Titles Alphabetically"
row  title Title "2/ 4      Title Sorted All Formats" "Viewing All Titles Alphabetically"
row  vhs   VHS   "3/ 4        VHS  Sorted"            "Viewing All VHS Titles Alphabetically"

film 1 Title="Zulu" Format="D"
film 2 Title="Alien" Format="X"
film 3 Title="Brazil" Format="V"
film 4 Title="Cabaret" Format="L"
sorted
start
click mnuBy{KIND}
see state ViewKind "{KIND}"
see frmPage1 "Reelora Prima Record  {CAPTION}"
see lblHead "{HEADING}"
