# Delete answered No leaves the view; its place stays.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
sorted
start
click mnuByVHS
click cmdNext
see state KeyFilePos 2
click cmdDelete
box question "Reelora Prima" "Are you sure you want to DELETE this record? This file will be removed permanently!!" No
see state ViewKind ""
see state KeyFilePos 2
see frmPage1 "Reelora Prima Record  2/ 2      Title Non Sorted"
