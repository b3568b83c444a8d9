# In a new film the genre list that is left brings the covered fields back and steers to the time.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdNew
click txtGenre
click txtDirector
see focus txtTime
see List1.Visible no
see List1.Items
see lblSelect.Visible no
see lblSorting.Visible yes
see txtCLV1.Visible yes
see txtStar6(1).Visible yes
see txtColor1.Visible yes
see txtLetter.Visible yes
