# A list of forty-one keys ends on its third page; chosen again it is fresh, and its hits are counted on.
films 1 41 Title="Film ##" Format="V" Genre="CO"
sorted
start
click mnuAllVHS
click cmdNext20
see Text1(19) "Film 40"
see state HitCount 40
click cmdNext20
beep
box none "" "End of file!" OK
see Text1(0) "Film 41"
see Text1(1) ""
see state PageMode 0
see state HitCount 41
click mnuAllVHS
see Text1(0) "Film 01"
see state PageMode 0
see state HitCount 61
