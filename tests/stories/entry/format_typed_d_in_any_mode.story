# D becomes DVD even where the film is not open; V and L stay as they are.
film 1 Title="49th Parallel, The" Format="V" Genre="WE"
film 2 Title="Area 49" Format="D" Genre="DR"
sorted
start
click mnuByDVD
see state EditMode 6
click txtFormat
clear
type "V"
see txtFormat "V"
clear
type "L"
see txtFormat "L"
clear
see txtCassNo.Enabled yes
type "D"
see txtFormat "DVD"
see txtCassNo.Enabled no
see txtCLV1.Enabled no
