# A part of 324 bytes past the last film is no slot: the new film takes its place whole.
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
+ "                                     V                                                          "
start
see state RecordCount 2
click cmdNew
see state CurrentRecNo 3
type "Mirror"
click cmdSave
see film 3 Title "Mirror"
see film 3 Format ""
see length Recpra.Dat 1947
