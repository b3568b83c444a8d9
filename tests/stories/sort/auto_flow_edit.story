# A film opened with Edit is saved and sorted when the last field loses the focus, whatever the settings say.
each SETTINGS               CONTENT   CONTENT2
row  save_off_sort_off_edit "NO\r\n"  "NO\r\n"
row  save_off_sort_on_edit  "NO\r\n"  "YES\r\n"
row  save_on_sort_off_edit  "YES\r\n" "NO\r\n"
row  save_on_sort_on_edit   "YES\r\n" "YES\r\n"

film 1 Title="Solaris" Format="D"
film 2 Title="alien" Format="L"
film 3 Title="Ran" Format="V"
film 4 Title="Brazil" Format="V"
film 5 Title="Zelig" Format="D"
file AutoSave "{CONTENT}"
file AutoSort "{CONTENT2}"
start
click cmdNext
click cmdEdit
click optnoteson
click txtRatings
type "Good"
key Tab
beep
beep
beep
beep
see film 2 Ratings "Good"
see file Titlepra.Dat "alien                                   0000002\r\nBrazil                                  "
+ "0000004\r\nRan                                     0000003\r\nSolaris                                 0000001\r\n"
+ "Zelig                                   0000005\r\n"
see file DVDpra.Dat "Solaris                                 0000001\r\nZelig                                   "
+ "0000005\r\n"
see file Laserpra.Dat "alien                                   0000002\r\n"
see file VHSpra.Dat "Brazil                                  0000004\r\nRan                                     "
+ "0000003\r\n"
see file Titlepra " 5\r\n"
see file DVDpra " 2\r\n"
see file Laserpra " 1\r\n"
see file VHSpra " 2\r\n"
see state TitleCount "5"
see state DVDCount "2"
see state LaserCount "1"
see state VHSCount "2"
see file Last " 2 \r\n"
see state LastEntryRecNo "2"
see state EditMode 1
see state NewMode 0
see state ViewKind "DVDpra"
see state CurrentRecNo 2
see lblSorting ""
