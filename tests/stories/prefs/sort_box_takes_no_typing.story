# The box of Auto Sort takes no typing either, when a setting of another word leaves it enabled.
file AutoSort "MAYBE\r\n"
start
see txtAutoSort.Enabled yes
click txtAutoSort
see focus txtAutoSort
type "x"
see txtAutoSort ""
key Space
see txtAutoSort ""
