# In a new film a key closes the colour list and opens page 2.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdNew
click txtColor1
key Down
key Enter
see txtColor1 "B & W"
see lblPage "PAGE 2"
see focus txtProducer
see state PageFlag 0
see List6.Visible no
see List6.Items
see optnoteson.Value yes
see txtTitle.Visible no
see txtRatings.Visible yes
