# A view opened over a list has its own key file; the list goes on in the one that it was opened on, and the view then
# in its own.
films 1 30 Title="Film ##" Format="V"
films 31 90 Title="Film ##" Format="D"
sorted
start
click mnuAllTitles
see Text1(0) "Film 01"
click mnuByDVD
see txtTitle "Film 31"
see state KeyFilePos 1
click cmdNext20
see Text1(0) "Film 02"
see Text1(19) "Film 21"
see state KeyFilePos 21
click mnuByDVD
see txtTitle "Film 51"
