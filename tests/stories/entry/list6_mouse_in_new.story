# In a new film a press on a colour takes it and leaves the list up; leaving it opens page 2.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdNew
click txtColor1
pick List6 "B & W"
see txtColor1 "B & W"
see List6.Visible yes
see focus List6
see lblPage "PAGE 1"
key Tab
see lblPage "PAGE 2"
see focus txtProducer
see state PageFlag 0
see List6.Visible no
see List6.Items
see optnoteson.Value yes
see txtTitle.Visible no
see txtRatings.Visible yes
