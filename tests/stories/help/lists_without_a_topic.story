# The lists of format and rating have no topic: that of the field stays, as the focus passes on to the list.
each LIST  FIELD      TOPIC PAGE
row  List3 txtFormat  490   optNotesoff
row  List2 txtRating  37    optnoteson

film 1 Title="Solaris" Format="D" Rating="G"
start
click {PAGE}
click cmdEdit
click {FIELD}
see focus {LIST}
see frmPage1.HelpContext {TOPIC}
key F1
help {TOPIC}
