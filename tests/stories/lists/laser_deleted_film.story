# Laser list shows what the records hold now: a deleted film is a row without a title, a changed one has its new words.
films 1 20 Title="Film ##" Year="19##" Genre="DR" Format="L"
sorted
film 2 Title=""
film 3 Title="Zulu" Year="1964" Genre="DR" Format="V"
start
click mnualllas
see Text1(1) ""
see Text3(1) ""
see Text1(2) "Zulu"
see Text2(2) "1964              Drama"
see Text3(2) "VHS"
see Text1(3) "Film 04"
see Text2(3) "1904              Drama"
see Text3(3) "Laser"
