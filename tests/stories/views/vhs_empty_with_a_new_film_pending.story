# VHS view of an empty key file while the first film of all is being written: the slot is given back.
count VHSpra 1
file VHSpra.Dat ""
start
click cmdNew
see state NewPending 1
see state RecordCount 1
click mnuByVHS
box none "" "There are No VHS Tapes in Library or Files need to Be Sorted" OK
box question "Reelora Prima" "You have not saved your work.  To save it now hit Yes." No
see state RecordCount 0
see state CountRollback 0
see state NewMode 0
