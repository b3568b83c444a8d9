# Of the figure the first five characters stand in the question.
films 1 1003 Title="Film ####"
sorted
clock 2026-11-21 09:05:07
start
click mnuAll
box question "Reelora Prima Print Program" "If you have added any new records be sure to sort files before "
+ "printing!\n\nAre you sure you want to print all titles? The full list will take 125.3 pages to print." No
see state PageEstimate "125.375"
