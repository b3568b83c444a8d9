# At a key that begins with "49" Save writes the film, with no Edit before it.
film 1 Title="49th Parallel" Director="Ann" Format="D"
sorted
start
click mnuByDVD
click txtDirector
type "a"
click cmdSave
see lblSave.Visible yes
see film 1 Director "Anna"
see state EditMode 0
see state RecordCount 2
see state ViewKind "DVD"
