# New takes the lowest deleted slot, after a restart just the same.
film 1 Title="Film 1"
film 2 Title="Film 2"
film 3 Title="Film 3"
film 4 Title="Film 4"
start
click mnuLast
click cmdPrevious
click cmdDelete
box question "Reelora Prima" "Are you sure you want to DELETE this record? This file will be removed permanently!!" Yes
click cmdSave
click cmdPrevious
click cmdDelete
box question "Reelora Prima" "Are you sure you want to DELETE this record? This file will be removed permanently!!" Yes
click cmdNew
see state CurrentRecNo 2
restart
click cmdNew
see state CurrentRecNo 2
type "Zulu"
click cmdSave
click cmdNew
see state CurrentRecNo 3
see state RecordCount 4
