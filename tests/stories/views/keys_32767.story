# A view of 32,767 keys is the longest that opens.
films 1 32767 Title="Film #####" Format="D"
sorted
start
click mnuByTitle
see txtTitle "Film 00001"
click cmdNext
see txtTitle "Film 00002"
see state KeyFilePos 2
