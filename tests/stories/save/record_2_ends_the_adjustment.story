# A save of record 2 ends the adjustment, in Edit as well.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
sorted
start
click mnuShort
box question ANY ANY No
see state FirstRecordAdjust 1
click cmdReset
see state FirstRecordAdjust 1
click cmdEdit
click cmdSave
see state FirstRecordAdjust 1
click cmdNext
click cmdEdit
click cmdSave
see state FirstRecordAdjust 0
