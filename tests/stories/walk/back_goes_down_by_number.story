# Back shows the film with the number below.
films 1 5 Title="Film #" Year="198#"
start
click cmdNext
click cmdNext
click cmdPrevious
see txtTitle "Film 2"
see txtYear "1982"
see frmPage1 "Reelora Prima Record  2/ 5      Title Non Sorted"
