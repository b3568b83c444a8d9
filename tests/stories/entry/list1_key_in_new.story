# In a new film a key closes the genre list, the fields come back, and the time is next.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdNew
click txtGenre
key Down
key Enter
see txtGenre "AD"
see List1.Visible no
see List1.Items
see focus txtTime
see lblSelect.Visible no
see lblSorting "Save Work When Finished!"
see lblSorting.Visible yes
see txtCLV1.Visible yes
see txtStar6(1).Visible yes
see txtColor1.Visible yes
see txtLetter.Visible yes
