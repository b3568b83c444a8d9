# The guided tour: the real window on the sample collection, picture by picture.
folder ../../delivered/sample
clock 2026-11-21 20:15:00
remove Fo
file Fo1 "later\r\n"
start opener
picture 01_opening
click cmdStart
picture 02_features
click Command1
picture 03_quick_start
file Fo1 "NO\r\n"
restart
picture 04_page_1
click optnoteson
picture 05_page_2
click optNotesoff
click cmdSort
beep
beep
beep
beep
picture 06_sorted
click mnuByDVD
click cmdNext
picture 07_view_of_all_dvds
click mnuAllTitles
picture 08_list_of_twenty
click cmdReset
click mnuAll
box question "Reelora Prima Print Program" "If you have added any new records be sure to sort files before "
+ "printing!\n\nAre you sure you want to print all titles? The full list will take 12.37 pages to print." Yes
printed 13
beep
box warning "Reelora Prima Print Program" "End of file!   please wait. There are 13 pages to print." OK
picture page 1 09_printed_page
click mnuFindDirector
input "Search For Director" "Enter Director. To Search: " "hitch"
picture 10_search_hit
click cmdReset
click cmdNew
type "The Lady Vanishes"
key Tab
type "Alfred Hitchcock"
key Tab
type "Margaret Lockwood"
key Tab
type "Michael Redgrave"
key Tab
key Tab
key Tab
key Tab
key Tab
type "Criterion"
picture 11_typing_a_new_film
key Tab
picture 12_pick_list_of_formats
key Down
key Enter
type "1"
key Tab
key End
key Up
picture 13_pick_list_of_genres
key Enter
type "96"
key Tab
type "1938"
key Tab
key Enter
key Down
key Enter
key Down
key Enter
picture 14_page_2_of_the_new_film
restart
click mnuCopy
pick File1 "Recpra.Dat"
picture 15_copy_files
picture help 220 16_help_on_save
