# On a twenty-row list New does nothing and says nothing.
films 1 22 Title="Film ##" Format="V"
sorted
start
click mnuAllVHS
see state SearchState 1
click cmdNew
see state NewMode 0
see state RecordCount 22
