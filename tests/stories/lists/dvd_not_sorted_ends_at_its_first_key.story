# DVD list with a count of 0 and no keys: the refusal, then the end at the first key.
film 1 Title="Alien" Format="V"
sorted
start
click mnuByVHS
click mnualldvd
box warning "Reelora Prima" "Records have not been sorted.  Records must be sorted before records can viewed!" OK
beep
box none "" "End of file!" OK
see state ListState 0
see state SearchState 0
see state ListShown 0
see state ListShownAlso 0
see state PageMode 0
see state KeyFilePos 0
see state ViewKind ""
see state CurrentRecNo 1
see Text1(0).Visible no
see Text2(19).Visible no
see Text3(10).Visible no
see cmdNext20.Visible no
see cmdNext.Visible yes
see cmdPrevious.Visible yes
see cmdNew.Visible yes
see optNotesoff.Visible yes
see optnoteson.Visible yes
