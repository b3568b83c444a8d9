# A save in Edit brings the buttons and labels back to rest.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdEdit
see lblHead.Visible no
see lblSorting.Visible yes
see cmdNext.Enabled no
see cmdPrevious.Enabled no
see cmdDelete.Enabled no
click cmdSave
see cmdNext.Enabled yes
see cmdPrevious.Enabled yes
see cmdDelete.Enabled yes
see cmdNew.Enabled yes
see cmdMatch.Enabled yes
see optnoteson.Enabled yes
see optNotesoff.Enabled yes
see txtGenreList.Enabled yes
see lblHead.Visible yes
see lblSorting.Visible no
