# No turns Auto Sort off but leaves an empty line in its file, so that a restart knows neither word.
file AutoSort "YES\r\n"
start
see txtAutoSort "Auto Sort On"
click mnuAutoSort
box question "Reelora Prima" "To activate \" Auto Sort\" click (Y)  or to remove\" Auto Sort\" click (N) " No
see state AutoSortSetting "NO"
see txtAutoSort "Auto Sort Off"
see file AutoSort "\r\n"
see file AutoSave "NO\r\n"
restart
see state AutoSortSetting ""
see txtAutoSort ""
see txtAutoSave "Auto Save Off"
