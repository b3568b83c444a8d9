# In a new film a press on a genre takes it and closes the list; the time is next.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdNew
click txtGenre
pick List1 "MU = Musical"
see txtGenre "MU"
see txtGenreList "Musicals"
see List1.Visible no
see List1.Items
see lblSelect.Visible no
see focus txtTime
see lblSorting "You are inputting onto page 1.   When all entries on this page are complete,  page 2  will come up "
+ "automatically."
see txtCLV1.Visible yes
see txtStar6(1).Visible yes
see txtColor1.Visible yes
see txtLetter.Visible yes
