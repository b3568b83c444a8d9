# A setting that is neither YES nor NO leaves its box as it is, and the run continues.
file AutoSave "yes\r\n"
file AutoSort "\r\n"
start
see txtAutoSave ""
see txtAutoSort ""
see state AutoSaveSetting "yes"
see state AutoSortSetting ""
see focus cmdSave
