# Yes turns Auto Save on at once: in the word, in the box, in the file, and after a restart.
start
see txtAutoSave "Auto Save Off"
see state AutoSaveSetting "NO"
click mnuAutoSave
box question "Reelora Prima" "To activate \" Auto Save\" click (Y)  or to remove\" Auto Save\" click (N) " Yes
see state AutoSaveSetting "YES"
see txtAutoSave "Auto Save On"
see txtAutoSave.Enabled no
see file AutoSave "YES\r\n"
restart
see state AutoSaveSetting "YES"
see txtAutoSave "Auto Save On"
