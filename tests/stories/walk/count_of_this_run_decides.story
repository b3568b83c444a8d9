# The end is where this run's count is, not where the file ends: a part of a record is counted from its half on.
film 1 Title="Alien"
film 2 Title="Brazil"
start
click cmdNew
click cmdReset
box question "Reelora Prima" "You have not saved your work.  To save it now hit Yes." No
see state RecordCount 3
see length Recpra.Dat 1298
click cmdNext
click cmdNext
see state CurrentRecNo 3
click cmdNext
beep
box warning "" "End of file encountered!" OK
