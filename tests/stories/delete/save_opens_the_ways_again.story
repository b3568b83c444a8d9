# After a deletion Save opens the ways on again.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdDelete
box question "Reelora Prima" "Are you sure you want to DELETE this record? This file will be removed permanently!!" Yes
click cmdSave
see cmdNext.Enabled yes
see cmdPrevious.Enabled yes
see cmdDelete.Enabled yes
see lblSorting.Visible no
see lblSave.Visible no
see txtTitle ""
