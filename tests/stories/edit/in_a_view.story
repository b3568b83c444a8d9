# Edit works in a view, whose heading goes.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
sorted
start
click mnuByTitle
click cmdEdit
see state EditMode 1
see lblHead.Visible no
see state ViewKind "Title"
