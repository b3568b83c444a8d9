# In a view that is opened after a list Alt+B steps back in the view.
films 1 25 Title="Film ##"
sorted
start
click mnuAllTitles
click cmdNext20
beep
box none "" "End of file!" OK
click mnuByTitle
click cmdNext
see txtTitle "Film 02"
key Alt+B
see txtTitle "Film 01"
