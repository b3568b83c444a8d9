# A list shows what the records contain now: a deleted film is a row without a title, a changed one has its new
# words.
each LIST   FORMAT MENU         SEEN
row  titles D      mnuAllTitles DVD
row  dvd    D      mnualldvd    DVD
row  laser  L      mnualllas    Laser
row  vhs    V      mnuAllVHS    VHS

films 1 20 Title="Film ##" Year="19##" Genre="DR" Format="{FORMAT}"
sorted
film 2 Title=""
film 3 Title="Zulu" Year="1964" Genre="DR" Format="V"
start
click {MENU}
see Text1(1) ""
see Text3(1) ""
see Text1(2) "Zulu"
see Text2(2) "1964              Drama"
see Text3(2) "VHS"
see Text1(3) "Film 04"
see Text2(3) "1904              Drama"
see Text3(3) "{SEEN}"
