# In Edit the colour list that is left steers nowhere and opens no page.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdEdit
click txtColor1
click txtDirector
see focus txtDirector
see List6.Visible no
see List6.Items
see lblPage "PAGE 1"
