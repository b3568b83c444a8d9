# YES and NO show as On and Off in two boxes that take no typing.
file AutoSave "YES\r\n"
file AutoSort "NO\r\n"
start
see txtAutoSave "Auto Save On"
see txtAutoSave.Enabled no
see txtAutoSort "Auto Sort Off"
see txtAutoSort.Enabled no
see state AutoSaveSetting "YES"
see state AutoSortSetting "NO"
