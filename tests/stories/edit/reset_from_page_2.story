# Reset on page 2 puts page 1 up.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click optnoteson
click cmdReset
see lblPage "PAGE 1"
see optNotesoff.Value yes
see optnoteson.Value no
see txtProducer.Visible no
see state PageFlag 0
