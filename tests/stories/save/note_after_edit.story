# A save in Edit says so; Save in view and the save of a new film do not.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdSave
see lblSave.Visible no
click cmdEdit
click cmdSave
see lblSave.Visible yes
see lblSave "    Your Work Has Been Saved!"
click cmdNew
click cmdSave
see lblSave.Visible no
