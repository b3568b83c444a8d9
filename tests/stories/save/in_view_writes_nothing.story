# Save in view writes nothing.
film 1 Title="  Alien" Tail="xx"
film 2 Title="Brazil"
start
see txtTitle "Alien"
click cmdSave
see file Recpra.Dat "  Alien                                                                                         "
+ "                                                                                                                  "
+ "                                                                                                                  "
+ "                                                                                                                  "
+ "                                                                                                                  "
+ "                                                                                               "
+ "xxBrazil                                                                                                          "
+ "                                                                                                                  "
+ "                                                                                                                  "
+ "                                                                                                                  "
+ "                                                                                                                  "
+ "                                                                               \r\n"
see state RecordCount 2
