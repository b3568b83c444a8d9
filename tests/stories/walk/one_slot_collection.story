# An empty collection counts one slot: Next shows the slot after it and says so, Back says its own.
start
see frmPage1 "Reelora Prima Record  1/ 1      Title Non Sorted"
click cmdNext
beep
box warning "" "End of file encountered!" OK
see state CurrentRecNo 1
click cmdPrevious
beep
box warning "" "Top of file encountered!" OK
