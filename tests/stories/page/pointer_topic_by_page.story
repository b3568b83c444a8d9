# Over the bare window the topic is 150 on page 1 and 180 on page 2.
film 1 Title="Alien"
start
move frmPage1
see frmPage1.HelpContext 150
click optnoteson
move frmPage1
see frmPage1.HelpContext 180
key F1
help 180
