# With Auto Save off a new film is neither saved nor sorted, and the message says so.
each SETTINGS              CONTENT
row  save_off_sort_off_new "NO\r\n"
row  save_off_sort_on_new  "YES\r\n"

film 1 Title="Solaris" Format="D"
film 2 Title="alien" Format="L"
film 3 Title="Ran" Format="V"
film 4 Title="Brazil" Format="V"
film 5 Title="Zelig" Format="D"
file AutoSave "NO\r\n"
file AutoSort "{CONTENT}"
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
see file Titlepra " 0\r\n"
see state NewMode 1
see state EditMode 1
see state ViewKind ""
see state SortStarted 1
