# The genre list that is left on page 2 brings its fields up there, and the save hides three of them.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdEdit
click txtGenre
key Alt+G
see lblPage "PAGE 2"
see focus List1
see txtGenre.Visible no
key Tab
see focus cmdSave
see txtGenre.Visible yes
see txtGenreList.Visible yes
see txtCLV1.Visible yes
see txtColor1.Visible yes
click cmdSave
see state PageFlag 1
see txtGenre.Visible no
see txtGenreList.Visible no
see txtCLV1.Visible no
see txtColor1.Visible yes
