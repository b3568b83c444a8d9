# Nothing of what stood in a reused slot survives.
film 1 Title="Alien"
film 2 Director="Nobody" Format="V" Genre="WE" CLV1="CAV" Color1="Color" Rating="R" Letter="T" NumReel="2" Cost="1"
+ Tail="xx"
start
click cmdNew
type "Zulu"
click cmdSave
see file Recpra.Dat "Alien                                                                                           "
+ "                                                                                                                  "
+ "                                                                                                                  "
+ "                                                                                                                  "
+ "                                                                                                                  "
+ "                                                                                               \r\n"
+ "Zulu                                                                                                              "
+ "                                                                                                                  "
+ "                                                                                                                  "
+ "                                                                                                                  "
+ "                                                                                                                  "
+ "                                                                             \r\n"
