# A save ends the record with CR LF whatever stood there.
film 1 Title="Alien" Tail="xx"
film 2 Title="Brazil"
start
click cmdEdit
click cmdSave
see file Recpra.Dat "Alien                                                                                           "
+ "                                                                                                                  "
+ "                                                                                                                  "
+ "                                                                                                                  "
+ "                                                                                                                  "
+ "                                                                                               \r\n"
+ "Brazil                                                                                                            "
+ "                                                                                                                  "
+ "                                                                                                                  "
+ "                                                                                                                  "
+ "                                                                                                                  "
+ "                                                                             \r\n"
