# Start pressed again behind a view closes its key file; the view opens it again and continues.
films 1 3 Title="Film ##"
sorted
start opener
click cmdStart
click mnuByTitle
click cmdNext
see txtTitle "Film 02"
click cmdStart
see frmPage1.Visible yes
click cmdNext
see txtTitle "Film 03"
see state KeyFilePos 3
