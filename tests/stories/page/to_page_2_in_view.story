# Page 2 shows the credits of the same film, and Save has the focus.
film 1 Title="Alien" Producer="Gordon Carroll" Rating="R"
start
click optnoteson
see lblPage "PAGE 2"
see state PageFlag 1
see focus cmdSave
see txtProducer "Gordon Carroll"
see txtRating "R    "
see optnoteson.Value yes
see optNotesoff.Value no
see lblNumrec.Visible no
see lblRetcode.Visible no
click optNotesoff
see lblPage "PAGE 1"
see lblNumrec.Visible yes
see lblRetcode.Visible yes
see lblSave.Visible no
see optNotesoff.Value yes
