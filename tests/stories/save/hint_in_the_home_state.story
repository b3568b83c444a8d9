# In the home state a save brings the hint of the New button; after the start it does not.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
see state ViewState 1
click cmdNew
see lblHead ""
click cmdSave
see lblHead ""
see lblHead.Visible yes
click cmdReset
see state ViewState 0
click cmdNew
see lblHead ""
click cmdSave
see lblHead "To write a new record click \"New\" button or ALT \"W\""
