# Auto Save off stops a new film whatever Auto Sort says.
film 1 Title="Solaris" Format="D"
film 2 Title="alien" Format="L"
film 3 Title="Ran" Format="V"
film 4 Title="Brazil" Format="V"
film 5 Title="Zelig" Format="D"
file AutoSave "NO\r\n"
file AutoSort "\r\n"
start
click cmdNew
type "Mirror"
click optnoteson
click txtRatings
key Tab
see lblSorting "AUTO SAVE IS OFF!  When the last text box is filled in and the tab key pressed, you will have to "
+ "manually save and sort this record."
see length Recpra.Dat 3245
see missing Last
