# A save of the only film counts one slot more, too.
film 1 Title="Alien"
start
see state RecordCount 1
click cmdEdit
click cmdSave
see state RecordCount 2
see state FirstRecordAdjust 1
click cmdEdit
click cmdSave
see state RecordCount 2
see state FirstRecordAdjust 1
