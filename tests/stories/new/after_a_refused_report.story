# After a report that was not printed the next New of a full collection takes the last film's slot.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
sorted
start
click mnuShort
box question ANY ANY No
click cmdReset
see state FirstRecordAdjust 1
click cmdNew
see state CurrentRecNo 2
see state RecordCount 2
type "Zulu"
click cmdSave
see film 2 Title "Zulu"
see length Recpra.Dat 1298
see state FirstRecordAdjust 0
