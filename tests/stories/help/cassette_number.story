# The focus on the cassette number of a tape sets its topic.
film 1 Title="Solaris" Format="V"
start
click cmdEdit
click txtCassNo
see frmPage1.HelpContext 15
