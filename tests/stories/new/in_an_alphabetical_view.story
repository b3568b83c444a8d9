# In an alphabetical view New goes through.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
sorted
start
click mnuByTitle
see state SearchState 0
click cmdNew
see state NewMode 1
see state CurrentRecNo 3
see focus txtTitle
see frmPage1 "Reelora Record Prima 3/ 3"
