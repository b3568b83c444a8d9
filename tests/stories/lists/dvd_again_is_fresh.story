# DVD list chosen again on its first page begins anew; after Next it goes on from the last row.
films 1 45 Title="Film ##" Year="19##" Genre="DR" Format="D"
sorted
start
click mnualldvd
click mnualldvd
see Text1(0) "Film 01"
see Text1(19) "Film 20"
click cmdNext20
see state KeyFilePos 40
click mnualldvd
beep
box none "" "End of file!" OK
see Text1(0) "Film 40"
see Text1(5) "Film 45"
see Text1(6) ""
