# DVD view of an empty key file in Edit: the reset asks about the work.
film 1 Title="Alien"
count DVDpra 1
file DVDpra.Dat ""
start
click cmdEdit
click mnuByDVD
box warning "ALPHA DVD TITLE SEARCH" "There are No DVD Discs in Library or Files need to Be Sorted" OK
box question "Reelora Prima" "You have not saved your work.  To save it now hit Yes." No
see state EditMode 0
