# The last line may lack its end, and leading blanks are dropped.
file AutoSave "  YES"
file Titlepra " 12"
start
see txtAutoSave "Auto Save On"
see state TitleCount "12"
