# A "Last" whose line is not a number: what Find Last Entry shows.
each CONTENT_NAME  CONTENT
row  blank_line    "\r\n"
row  emptied       ""
row  half_a_number "3x\r\n"
row  too_large     "9999999999\r\n"
row  word          "none\r\n"

films 1 4 Title="Film #" Genre="SF" Format="D"
file Last "{CONTENT}"
start
click cmdNext
click mnuLastEntry
see txtTitle "Film 2"
see state CurrentRecNo 2
see frmPage1 "Reelora Prima Record  2/ 4      Title Non Sorted"
click cmdNext
see txtTitle "Film 3"
