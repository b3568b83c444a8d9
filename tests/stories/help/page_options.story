# The focus on the page switch sets its topics.
start
click optnoteson
click optNotesoff
see focus optNotesoff
see frmPage1.HelpContext 28
key F1
help 28
