# A changed field is stored by Save and the others stay.
film 1 Title="Alien" Director="Ridley Scott" Format="L" CLV1="CAV" Letter="P" Color1="Color" Genre="SF" Rating="R"
+ Year="1979" NumReel="2"
film 2 Title="Brazil"
start
click cmdEdit
click txtYear
clear
type "1980"
click cmdSave
see file Recpra.Dat "Alien                                   Ridley Scott                                            "
+ "                                                                                                                  "
+ "                                                       L2SF   1980     "
+ "PCAVColor                                                                                                         "
+ "                                                                                                                  "
+ "                                                                                       "
+ "R                                                  \r\nBrazil                                                     "
+ "                                                                                                                  "
+ "                                                                                                                  "
+ "                                                                                                                  "
+ "                                                                                                                  "
+ "                                                                                                                  "
+ "                  \r\n"
