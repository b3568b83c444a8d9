# In a new film the colour list that is left opens page 2, wherever the user was going.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdNew
click txtColor1
click txtDirector
see txtColor1 "Color"
see lblPage "PAGE 2"
see focus txtProducer
see state PageFlag 0
see List6.Visible no
see List6.Items
see optnoteson.Value yes
see txtTitle.Visible no
see txtRatings.Visible yes
