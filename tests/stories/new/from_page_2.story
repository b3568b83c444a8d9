# New on page 2 puts page 1 up.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click optnoteson
click cmdNew
see lblPage "PAGE 1"
see optNotesoff.Value yes
see txtTitle.Visible yes
see txtProducer.Visible no
see focus txtTitle
see state PageFlag 0
