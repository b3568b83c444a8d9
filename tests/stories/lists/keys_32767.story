# A list of 32,767 keys stops while it opens.
films 1 32767 Title="Film #####" Format="D"
sorted
start
click mnuAllTitles
stop "Overflow"
