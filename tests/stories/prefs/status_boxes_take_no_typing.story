# The status boxes take no typing, even when a setting of another word leaves them enabled.
file AutoSave "MAYBE\r\n"
start
see txtAutoSave.Enabled yes
click txtAutoSave
see focus txtAutoSave
type "x"
see txtAutoSave ""
clear
see txtAutoSave ""
