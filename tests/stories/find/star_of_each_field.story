# Star search: each of the six stars is found, and the heading names it.
each STAR BOX         POSITION STARHIT2 STARHIT3 STARHIT4 STARHIT5 STARHIT6
row  1    txtStar1(0) 6        0        0        0        0        0
row  2    txtStar2(1) 0        6        0        0        0        0
row  3    txtStar3(1) 0        0        6        0        0        0
row  4    txtStar4(1) 0        0        0        6        0        0
row  5    txtStar5(1) 0        0        0        0        6        0
row  6    txtStar6(1) 0        0        0        0        0        6

film 1 Title="Film 1" Star1="Aa" Star2="Bb" Star3="Cc" Star4="Dd" Star5="Ee" Star6="Ff"
film 2 Title="Film 2" Star{STAR}="Anna Karina"
start
click mnuFindStar
input "Search For Star" "Enter Star To Search: " "karina"
see state CurrentRecNo 2
see {BOX} "Anna Karina"
see lblHead "Viewing Files For  Anna Karina                   "
see state MatchPos {POSITION}
see state StarHit2 {STARHIT2}
see state StarHit3 {STARHIT3}
see state StarHit4 {STARHIT4}
see state StarHit5 {STARHIT5}
see state StarHit6 {STARHIT6}
see state StarTyped "karina"
see state StarQuery "KARINA"
