# The fields of page 2 and their topics.
film 1 Title="Solaris"
start
click cmdEdit
click optnoteson
see frmPage1.HelpContext 27
click txtProducer
see frmPage1.HelpContext 29
click txtCinematographer
see frmPage1.HelpContext 30
click txtWritten
see frmPage1.HelpContext 31
click txtMusic
see frmPage1.HelpContext 32
click txtChoreography
see frmPage1.HelpContext 33
click txtSetDirection
see frmPage1.HelpContext 34
click txtCostume
see frmPage1.HelpContext 35
click txtSound
see frmPage1.HelpContext 70
click txtPackage
see frmPage1.HelpContext 38
click txtAwards
see frmPage1.HelpContext 39
click txtPurchase
see frmPage1.HelpContext 40
click txtCost
see frmPage1.HelpContext 41
click txtRatings
see frmPage1.HelpContext 56
key F1
help 56
