# Next of a list is the genre list's, which refuses in its own words when the count of all titles is 0.
each LIST  FORMAT MENU
row  dvd   D      mnualldvd
row  laser L      mnualllas
row  vhs   V      mnuAllVHS

films 1 25 Title="Film ##" Format="{FORMAT}"
sorted
count Titlepra 0
start
click {MENU}
see Text1(0) "Film 01"
see Text1(19) "Film 20"
click cmdNext20
box warning "Reelora Prima Print Program" "Records have not been sorted.  Records must be sorted before records can "
+ "viewed!" OK
see state ListState 0
see state SearchState 0
see state ListShown 0
see state ListShownAlso 0
see state PageMode 0
see state RowCursor 0
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
