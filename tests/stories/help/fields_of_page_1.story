# The focus on a field sets its topic; the lists keep the topic of the field that they serve.
film 1 Title="Solaris" Format="L"
start
click cmdEdit
click txtDirector
see frmPage1.HelpContext 2
click txtStar1(0)
see frmPage1.HelpContext 3
click txtStar2(1)
see frmPage1.HelpContext 3
click txtLabel
see frmPage1.HelpContext 9
click txtNumReel
see frmPage1.HelpContext 10
click txtTime
see frmPage1.HelpContext 13
click txtYear
see frmPage1.HelpContext 14
click txtGenreList
see frmPage1.HelpContext 12
key F1
help 12
key Shift+Tab
see focus List1
see frmPage1.HelpContext 11
