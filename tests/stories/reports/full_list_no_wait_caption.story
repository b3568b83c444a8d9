# After No the next film that is shown brings the wait caption.
film 1 Title="Alpha" Format="D"
sorted
clock 2026-11-21 09:05:07
start
click mnuAll
box question "Reelora Prima Print Program" "If you have added any new records be sure to sort files before "
+ "printing!\n\nAre you sure you want to print all titles? The full list will take 1" No
click cmdEdit
see lblHead "Please wait print spooler is loading files."
