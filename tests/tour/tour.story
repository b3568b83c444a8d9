# The guided tour: the real window on the sample collection, picture by picture.
folder ../../delivered/sample
clock 2026-11-21 20:15:00
start opener
picture 01_opening
click cmdStart
restart
picture 02_page_1
click optnoteson
picture 03_page_2
click optNotesoff
click cmdSort
beep
beep
beep
beep
picture 04_sorted
click mnuByDVD
click cmdNext
picture 05_view_of_all_dvds
click mnuAllTitles
picture 06_list_of_twenty
click cmdReset
click mnuAll
box question "Reelora Prima Print Program" "If you have added any new records be sure to sort files before printing!\n\nAre you sure you want to print all titles? The full list will take 12.37 pages to print." Yes
printed 13
beep
box warning "Reelora Prima Print Program" "End of file!   please wait. There are 13 pages to print." OK
picture page 1 07_printed_page
click mnuFindDirector
input "Search For Director" "Enter Director. To Search: " "hitch"
picture 08_search_hit
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
picture 09_typing_a_new_film
key Tab
picture 10_pick_list_of_formats
key Down
key Enter
type "1"
key Tab
key End
key Up
picture 11_pick_list_of_genres
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
picture 12_page_2_of_the_new_film
