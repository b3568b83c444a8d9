# A deleted film leaves 647 blanks and CR LF; its neighbours stay.
each FORMAT_NAME FORMAT
row  dvd         D
row  laser       L
row  vhs         V

film 1 Title="Zulu"
film 2 Title="Alien" Director="Ridley Scott" Star1="A" Star2="B" Star3="C" Star4="D" Star5="E" Star6="F" Label="L"
+ NumReel="2" Genre="SF" Time="117" Year="1979" CassNo="7" Letter="T" CLV1="CAV" Color1="B & W" Producer="P"
+ Cinematographer="Q" Written="R" Music="S" Choreography="T" SetDirection="U" Costume="V" Sound="W" Awards="X"
+ Rating="NC-17" Package="Y" Purchase="Z" Cost="1" Ratings="2" Format="{FORMAT}"
film 3 Title="Brazil"
start
click cmdNext
click cmdDelete
box question "Reelora Prima" "Are you sure you want to DELETE this record? This file will be removed permanently!!" Yes
see file Recpra.Dat "Zulu                                                                                            "
+ "                                                                                                                  "
+ "                                                                                                                  "
+ "                                                                                                                  "
+ "                                                                                                                  "
+ "                                                                                               \r\n"
+ "                                                                                                                  "
+ "                                                                                                                  "
+ "                                                                                                                  "
+ "                                                                                                                  "
+ "                                                                                                                  "
+ "                                                                             \r\n"
+ "Brazil                                                                                                            "
+ "                                                                                                                  "
+ "                                                                                                                  "
+ "                                                                                                                  "
+ "                                                                                                                  "
+ "                                                                             \r\n"
