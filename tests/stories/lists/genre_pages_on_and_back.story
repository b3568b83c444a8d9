# Genre list: films of other genres are skipped in both directions.
films 1 100 Title="Film ###" Genre="CO" Format="D"
film 2 Title="Film 002" Genre="DR" Format="D"
film 4 Title="Film 004" Genre="DR" Format="D"
film 6 Title="Film 006" Genre="DR" Format="D"
film 8 Title="Film 008" Genre="DR" Format="D"
film 10 Title="Film 010" Genre="DR" Format="D"
film 12 Title="Film 012" Genre="DR" Format="D"
film 14 Title="Film 014" Genre="DR" Format="D"
film 16 Title="Film 016" Genre="DR" Format="D"
film 18 Title="Film 018" Genre="DR" Format="D"
film 20 Title="Film 020" Genre="DR" Format="D"
film 22 Title="Film 022" Genre="DR" Format="D"
film 24 Title="Film 024" Genre="DR" Format="D"
film 26 Title="Film 026" Genre="DR" Format="D"
film 28 Title="Film 028" Genre="DR" Format="D"
film 30 Title="Film 030" Genre="DR" Format="D"
film 32 Title="Film 032" Genre="DR" Format="D"
film 34 Title="Film 034" Genre="DR" Format="D"
film 36 Title="Film 036" Genre="DR" Format="D"
film 38 Title="Film 038" Genre="DR" Format="D"
film 40 Title="Film 040" Genre="DR" Format="D"
film 42 Title="Film 042" Genre="DR" Format="D"
film 44 Title="Film 044" Genre="DR" Format="D"
film 46 Title="Film 046" Genre="DR" Format="D"
film 48 Title="Film 048" Genre="DR" Format="D"
film 50 Title="Film 050" Genre="DR" Format="D"
film 52 Title="Film 052" Genre="DR" Format="D"
film 54 Title="Film 054" Genre="DR" Format="D"
film 56 Title="Film 056" Genre="DR" Format="D"
film 58 Title="Film 058" Genre="DR" Format="D"
film 60 Title="Film 060" Genre="DR" Format="D"
film 62 Title="Film 062" Genre="DR" Format="D"
film 64 Title="Film 064" Genre="DR" Format="D"
film 66 Title="Film 066" Genre="DR" Format="D"
film 68 Title="Film 068" Genre="DR" Format="D"
film 70 Title="Film 070" Genre="DR" Format="D"
film 72 Title="Film 072" Genre="DR" Format="D"
film 74 Title="Film 074" Genre="DR" Format="D"
film 76 Title="Film 076" Genre="DR" Format="D"
film 78 Title="Film 078" Genre="DR" Format="D"
film 80 Title="Film 080" Genre="DR" Format="D"
film 82 Title="Film 082" Genre="DR" Format="D"
film 84 Title="Film 084" Genre="DR" Format="D"
film 86 Title="Film 086" Genre="DR" Format="D"
film 88 Title="Film 088" Genre="DR" Format="D"
film 90 Title="Film 090" Genre="DR" Format="D"
film 92 Title="Film 092" Genre="DR" Format="D"
film 94 Title="Film 094" Genre="DR" Format="D"
film 96 Title="Film 096" Genre="DR" Format="D"
film 98 Title="Film 098" Genre="DR" Format="D"
film 100 Title="Film 100" Genre="DR" Format="D"
sorted
start
click mnuFindAllGenre
input "Search" "Enter Genre To Search:  Use 2 Letter Abreviation\n\rExamples\n\rAA  Action Adventure \n\rDR  "
+ "Drama\n\rCO  Comedy\n\rupper or lower case" "co"
see Text1(0) "Film 001"
see Text1(1) "Film 003"
see Text1(19) "Film 039"
see state KeyFilePos 39
see state HitCount 20
click cmdNext20
see Text1(0) "Film 041"
see Text1(19) "Film 079"
see state KeyFilePos 79
see state HitCount 40
click cmdPrev20
see Text1(0) "Film 001"
see Text1(1) "Film 003"
see Text1(18) "Film 037"
see Text1(19) "Film 039"
see state BackCount 40
see state KeyFilePos 1
click cmdPrev20
beep
box warning "" "Top of file encountered!" OK
