# A letter typed into the format of an open film turns into the name of the format at once.
each FORMAT_NAME TYPED SHOWN ENABLED ENABLED2
row  d           D     DVD   no      no
row  l           L     Laser no      yes
row  v           V     VHS   yes     no

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
type "{TYPED}"
see txtFormat "{SHOWN}"
see txtCassNo.Enabled {ENABLED}
see txtCLV1.Enabled {ENABLED2}
click cmdSave
see film 1 Format "{TYPED}"
