# During a field search New does nothing and says nothing.
film 1 Title="Alien" Director="Scott"
film 2 Title="Brazil" Director="Gilliam"
start
click mnuFindDirector
input "Search For Director" "Enter Director. To Search: " "gill"
see state SearchState 1
see txtTitle "Brazil"
click cmdNew
see state EditMode 0
see state NewMode 0
see state ClearOnShow 0
see state RecordCount 2
see state CurrentRecNo 2
see txtTitle "Brazil"
see cmdNext.Enabled yes
see focus cmdNew
see frmPage1.HelpContext 230
click cmdReset
click cmdNew
see state NewMode 1
