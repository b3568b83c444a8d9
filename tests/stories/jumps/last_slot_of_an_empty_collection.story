# Find Last Record in an empty collection is record 1.
start
click mnuLast
see state CurrentRecNo 1
see frmPage1 "Reelora Prima Record  1/ 1      Title Non Sorted"
