# Yes turns the setting on at once: in its caption, its box and its file, and after a restart.
each SETTING  FILE     SHOWN           TEXT                                         SHOWN2
row  save_yes AutoSave "Auto Save Off" "Save\" click (Y)  or to remove\" Auto Save" "Auto Save On"
row  sort_yes AutoSort "Auto Sort Off" "Sort\" click (Y)  or to remove\" Auto Sort" "Auto Sort On"

start
see txt{FILE} "{SHOWN}"
see state {FILE}Setting "NO"
click mnu{FILE}
box question "Reelora Prima" "To activate \" Auto {TEXT}\" click (N) " Yes
see state {FILE}Setting "YES"
see txt{FILE} "{SHOWN2}"
see txt{FILE}.Enabled no
see file {FILE} "YES\r\n"
restart
see state {FILE}Setting "YES"
see txt{FILE} "{SHOWN2}"
