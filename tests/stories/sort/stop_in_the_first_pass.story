# A key file that cannot be opened stops the run before its message shows.
film 1 Title="Alien" Format="D"
file Titlepra.Dat/x ""
start
click cmdSort
stop "Path/File access error"
see lblSorting.Visible no
see state SortStarted 1
see frmPage1.HelpContext 170
see file Titlepra " 0\r\n"
