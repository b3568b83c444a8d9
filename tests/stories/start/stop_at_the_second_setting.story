# Both settings are read before either is shown.
file AutoSave "YES\r\n"
remove AutoSort
start
stop "File not found"
see state AutoSaveSetting "YES"
see txtAutoSave ""
see frmPage1.Visible no
