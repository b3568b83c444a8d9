# A part of 325 bytes counts as a slot: its title is looked at, and a save after it fills it with blanks.
file Recpra.Dat "Alien                                                                                               "
+ "                                                                                                                  "
+ "                                                   D                                                              "
+ "                                                                                                                  "
+ "                                                                                                                  "
+ "                                                                                           \r\n"
+ "Brazil                                                                                                            "
+ "                                                                                                                  "
+ "                                     D                                                                            "
+ "                                                                                                                  "
+ "                                                                                                                  "
+ "                                                                             \r\n"
+ "Cube                                                                                                              "
+ "                                                                                                                  "
+ "                                     V                                                           "
start
see state RecordCount 3
click cmdNew
see state CurrentRecNo 4
type "Mirror"
click cmdSave
see film 3 Title "Cube"
see film 3 Format "V"
see film 3 Tail ""
see film 4 Title "Mirror"
see length Recpra.Dat 2596
