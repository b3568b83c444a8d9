# A letter with an accent is one byte of its field.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdEdit
click txtDirector
type "Andrés Wood, Škvorecký Ž€"
see txtDirector "Andrés Wood, Škvorecký Ž€"
click cmdSave
see file Recpra.Dat "Alien                                   Andr\xE9s Wood, \x8Akvoreck\xFD "
+ "\x8E\x80                                                                                                          "
+ "                                                                                              "
+ "V                                                                                                                 "
+ "                                                                                                                  "
+ "                                                                                                                  "
+ "                                        \r\nBrazil                                                                "
+ "                                                                                                                  "
+ "                                                                                 "
+ "V                                                                                                                 "
+ "                                                                                                                  "
+ "                                                                                                                  "
+ "                                        \r\n"
