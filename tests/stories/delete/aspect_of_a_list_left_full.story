# A deleted film leaves no aspect either when a new film before it left the aspect list full.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdNew
click txtFormat
pick List3 "DVD"
type "1"
click txtYear
click cmdSave
see List4.ListIndex 0
click cmdDelete
box question "Reelora Prima" "Are you sure you want to DELETE this record? This file will be removed permanently!!" Yes
see txtLetter ""
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
