# Record 12 of 100: two blanks before the 12, one before the 100.
films 1 2 Title="Film #"
film 100 Title="Last"
start
click mnuFile
input "Reelora Prima" "Enter File No To Search:" "12"
see frmPage1 "Reelora Prima Record  12/ 100      Title Non Sorted"
