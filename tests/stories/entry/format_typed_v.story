# V typed into the format of an open film turns into VHS at once.
film 1 Title="49th Parallel, The" Format="V" Genre="WE"
film 2 Title="Area 49" Format="D" Genre="DR"
sorted
start
click mnuByDVD
see state EditMode 6
click txtFormat
click mnuByTitle
see state EditMode 1
clear
type "V"
see txtFormat "VHS"
see txtCassNo.Enabled yes
see txtCLV1.Enabled no
click cmdSave
see film 1 Format "V"
