# From page 2 both buttons turn back to page 1.
film 1 Title="Alien" Producer="Gordon Carroll"
film 2 Title="Brazil" Producer="Arnon Milchan"
start
click optnoteson
see txtProducer "Gordon Carroll"
see txtProducer.Visible yes
click cmdNext
see lblPage "PAGE 1"
see txtProducer.Visible no
see optNotesoff.Value yes
see state PageFlag 0
click optnoteson
click cmdPrevious
see lblPage "PAGE 1"
see txtTitle.Visible yes
