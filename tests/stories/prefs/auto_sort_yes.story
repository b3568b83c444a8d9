# Yes turns Auto Sort on at once: in the word, in the box, in the file, and after a restart.
start
see txtAutoSort "Auto Sort Off"
see state AutoSortSetting "NO"
click mnuAutoSort
box question "Reelora Prima" "To activate \" Auto Sort\" click (Y)  or to remove\" Auto Sort\" click (N) " Yes
see state AutoSortSetting "YES"
see txtAutoSort "Auto Sort On"
see txtAutoSort.Enabled no
see file AutoSort "YES\r\n"
restart
see state AutoSortSetting "YES"
see txtAutoSort "Auto Sort On"
