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
close frmCopy
picture notice "Saved as /home/anna/Documents/Reelora Prima Full List.pdf" "Open|Show folder" 34_notice_report_saved
picture notice "Sent to the printer Office" "" 35_notice_report_sent
picture notice "Record 12 held Alien." "Put back" 36_notice_film_overwritten
picture notice "Alien is back in record 12." "" 37_notice_film_put_back
picture notice "Copied Recpra.Dat to the disk BACKUP in drive a: 63,602 bytes" "" 38_notice_copied
picture notice "A line break cannot be stored" "" 39_notice_character
picture work "Sorting Titles" 40 40_notice_sorting
picture help 220 16_help_on_save
picture failure "Disk full" "Recpra.Dat" 28 17_failure_disk_full
picture failure "Path/File access error" "Recpra.Dat" 13 18_failure_no_permission
picture failure "Path/File access error" "Recpra.Dat" 30 19_failure_write_protected
picture failure "Path/File access error" "AutoSave" 21 20_failure_folder_in_the_way
picture failure "Path/File access error" "Recpra.Dat" 116 21_failure_film_file_replaced
picture failure "File not found" "AutoSort" 2 22_failure_setting_missing
picture failure "File not found" "Recpra.Dat" 2 23_failure_film_file_missing
picture failure "File not found" "DVDpra.Dat" 2 24_failure_key_file_missing
picture failure "Input past end of file" "BGColor" 0 25_failure_setting_empty
picture failure "Type mismatch" "BGColor" 0 26_failure_setting_damaged
picture failure "Overflow" "" 0 27_failure_overflow
picture failure "Bad record number" "Recpra.Dat" 0 28_failure_bad_record_number
picture failure "Bad file name or number" "" 0 29_failure_file_closed
picture failure "File already open" "DVDpra.Dat" 0 30_failure_file_open
picture failure "Device I/O error" "Recpra.Dat" 5 31_failure_disk_error
picture failure "Printer error" "" 0 32_failure_printer_error
picture failure "Out of memory" "" 0 33_failure_out_of_memory
