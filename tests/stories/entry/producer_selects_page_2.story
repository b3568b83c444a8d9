# The producer that gets the focus selects page 2 and takes its way of turning.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdNew
see optNotesoff.Value yes
click txtColor1
key Enter
see optnoteson.Value yes
see optNotesoff.Value no
