# No turns Auto Save off and writes the word, so that a restart knows it.
file AutoSave "YES\r\n"
start
see txtAutoSave "Auto Save On"
click mnuAutoSave
box question "Reelora Prima" "To activate \" Auto Save\" click (Y)  or to remove\" Auto Save\" click (N) " No
see state AutoSaveSetting "NO"
see txtAutoSave "Auto Save Off"
see file AutoSave "NO\r\n"
see file AutoSort "NO\r\n"
restart
see state AutoSaveSetting "NO"
see txtAutoSave "Auto Save Off"
