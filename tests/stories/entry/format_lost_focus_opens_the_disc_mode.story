# The format that loses the focus as Laser opens the disc mode.
film 1 Title="49th Parallel, The" Format="V" Genre="WE"
film 2 Title="Area 49" Format="D" Genre="DR"
sorted
start
click mnuByDVD
see state EditMode 6
click txtFormat
clear
see txtCLV1.Enabled no
type "Laser"
see txtCLV1.Enabled yes
clear
type "D"
see txtCLV1.Enabled no
key Tab
see txtCLV1.Enabled no
