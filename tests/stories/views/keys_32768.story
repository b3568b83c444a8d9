# A view of 32,768 keys stops while it opens.
films 1 32768 Title="Film #####" Format="D"
sorted
start
see length DVDpra.Dat 1605632
click mnuByDVD
stop "Overflow"
