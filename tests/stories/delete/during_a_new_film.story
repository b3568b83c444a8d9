# Delete during a new film ends it; its slot holds a blank record.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdNew
type "Zulu"
click cmdDelete
box question "Reelora Prima" "Are you sure you want to DELETE this record? This file will be removed permanently!!" Yes
see state EditMode 0
see state NewMode 0
see state ClearOnShow 0
see file Recpra.Dat "Alien                                                                                           "
+ "                                                                                                                  "
+ "                                                       V                                                          "
+ "                                                                                                                  "
+ "                                                                                                                  "
+ "                                                                                               \r\n"
+ "Brazil                                                                                                            "
+ "                                                                                                                  "
+ "                                     V                                                                            "
+ "                                                                                                                  "
+ "                                                                                                                  "
+ "                                                                             \r\n"
+ "                                                                                                                  "
+ "                                                                                                                  "
+ "                                                                                                                  "
+ "                                                                                                                  "
+ "                                                                                                                  "
+ "                                                                             \r\n"
