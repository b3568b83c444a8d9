# The rows have the words of genre and format as the record screen has them; an unknown genre keeps the name of the
# row before.
film 1 Title="Alien" Year="79" Genre="SF" Format="L"
film 2 Title="Brazil" Year=" 85" Genre="ZZ" Format="V"
film 3 Title="Cabaret" Year="1972" Genre="MU" Format="D"
film 4 Title="Dune" Genre="SF" Format="x"
films 5 20 Title="Film ##"
sorted
film 1 Title="  Alien" Year=" 79" Genre="SF" Format="L"
start
click mnuAllTitles
see Text1(0) "Alien"
see Text2(0) "79              Science Fiction"
see Text3(0) "Laser"
see Text1(1) "Brazil"
see Text2(1) "85              Science Fiction"
see Text3(1) "VHS"
see Text1(2) "Cabaret"
see Text2(2) "1972              Musicals"
see Text3(2) "DVD"
see Text1(3) "Dune"
see Text2(3) "              Science Fiction"
see Text3(3) "X"
see Text1(4) "Film 05"
see Text3(4) ""
