# A colour file with a number beyond 32 bits or with a word stops the program.
each FILE_NAME             FILE        CONTENT           FAILURE
row  too_large_BGColor     BGColor     "99999999999\r\n" Overflow
row  too_large_tagForColor tagForColor "99999999999\r\n" Overflow
row  too_large_txtBGColor  txtBGColor  "99999999999\r\n" Overflow
row  too_large_txtForColor txtForColor "99999999999\r\n" Overflow
row  word_in_BGColor       BGColor     "blue\r\n"        "Type mismatch"
row  word_in_tagForColor   tagForColor "blue\r\n"        "Type mismatch"
row  word_in_txtBGColor    txtBGColor  "blue\r\n"        "Type mismatch"
row  word_in_txtForColor   txtForColor "blue\r\n"        "Type mismatch"

file {FILE} "{CONTENT}"
start
stop "{FAILURE}"
