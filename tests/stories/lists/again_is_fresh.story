# A list chosen again on its first page starts again; after Next it continues from the last row.
each LIST   FORMAT MENU
row  titles D      mnuAllTitles
row  dvd    D      mnualldvd
row  laser  L      mnualllas
row  vhs    V      mnuAllVHS

films 1 45 Title="Film ##" Year="19##" Genre="DR" Format="{FORMAT}"
sorted
start
click {MENU}
click {MENU}
see Text1(0) "Film 01"
see Text1(19) "Film 20"
click cmdNext20
see state KeyFilePos 40
click {MENU}
beep
box none "" "End of file!" OK
see Text1(0) "Film 40"
see Text1(5) "Film 45"
see Text1(6) ""
