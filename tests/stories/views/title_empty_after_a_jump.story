# Title view of an empty key file shows the film of the last record number used; here alone the test after the film
# reports the end.
film 1 Title="Alien"
film 2 Title="Brazil"
count Titlepra 1
file Titlepra.Dat ""
start
click mnuFile
input "Reelora Prima" "Enter File No To Search:" "2"
click cmdPrevious
see txtTitle "Alien"
click mnuByTitle
beep
box none "" "End of file!" OK
see txtTitle "Brazil"
see frmPage1 "Reelora Prima Record  2/ 2      Title Sorted All Formats"
see state KeyFilePos 1
