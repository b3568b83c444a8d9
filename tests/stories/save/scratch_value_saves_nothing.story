# At a key with 49 in its middle the fields take typing, but Save writes nothing and shows the film as it was.
film 1 Title="Room 49" Director="Ann" Format="D"
sorted
start
click mnuByTitle
see state EditMode 6
click txtDirector
type "a"
see txtDirector "Anna"
click cmdSave
see lblSave.Visible no
see film 1 Director "Ann"
see txtDirector "Ann"
see state EditMode 0
see state ViewKind "Title"
see state KeyFilePos 1
