# File > Save on page 2 of a new film turns the page as one: no field of page 2 gets the focus on the way, so no list
# opens.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdNew
type "Mirror"
click optnoteson
click txtSound
type "Mono"
click mnuSave
see film 3 Sound "Mono"
see List2.Visible no
see List2.Items
see lblPage "PAGE 1"
see focus optnoteson
