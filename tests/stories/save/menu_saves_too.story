# The menu line saves as the button does.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdEdit
click txtDirector
type "Ridley Scott"
click mnuSave
see film 1 Director "Ridley Scott"
see state EditMode 0
see lblSave.Visible yes
see focus txtDirector
