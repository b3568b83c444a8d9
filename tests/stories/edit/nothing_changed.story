# Edit and Save with nothing changed store the film as it was.
film 1 Title="Alien" Format="V" Letter="T" Genre="SF" CassNo="7"
film 2 Title="Brazil"
start
click cmdEdit
click cmdSave
see file Recpra.Dat "Alien                                                                                           "
+ "                                                                                                                  "
+ "                                                       V SF       7    "
+ "T                                                                                                                 "
+ "                                                                                                                  "
+ "                                                                                                                  "
+ "                        \r\nBrazil                                                                                "
+ "                                                                                                                  "
+ "                                                                                                                  "
+ "                                                                                                                  "
+ "                                                                                                                  "
+ "                                                                                                         \r\n"
