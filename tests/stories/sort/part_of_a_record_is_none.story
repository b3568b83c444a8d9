# What a broken copy has left behind the last record is no record to the sort.
file Recpra.Dat "Ran                                                                                                 "
+ "                                                                                                                  "
+ "                                                   V                                                              "
+ "                                                                                                                  "
+ "                                                                                                                  "
+ "                                                                                           \r\nPart of a "
+ "film                                                                                                              "
+ "                                                                                                                  "
+ "                           V                                                                                      "
+ "                                                                                                                  "
+ "                                                                                                                  "
+ "                                                                    "
start
click mnuSort
beep
beep
beep
beep
see file Titlepra.Dat "Ran                                     0000001\r\n"
see file VHSpra " 1\r\n"
see length Recpra.Dat 1297
