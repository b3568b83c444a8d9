# A list of 32,766 keys is the longest that opens.
films 1 32766 Title="Film #####" Format="D"
sorted
start
click mnuAllTitles
see Text1(19) "Film 00020"
see state KeyFilePos 20
