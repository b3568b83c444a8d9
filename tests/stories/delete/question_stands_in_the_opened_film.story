# The question comes over the opened film, whose way into Edit stays in force.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdDelete
box question "Reelora Prima" "Are you sure you want to DELETE this record? This file will be removed permanently!!" Yes
see cmdSave.Enabled yes
see mnuSave.Enabled yes
see txtCassNo.Enabled yes
