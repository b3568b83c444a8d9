# The last film deleted keeps its slot; the file does not shrink.
film 1 Title="Alien"
film 2 Title="Brazil"
film 3 Title="Casablanca"
start
click mnuLast
click cmdDelete
box question "Reelora Prima" "Are you sure you want to DELETE this record? This file will be removed permanently!!" Yes
see length Recpra.Dat 1947
see state RecordCount 3
restart
see state RecordCount 3
