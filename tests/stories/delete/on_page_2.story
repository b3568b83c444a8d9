# Delete on page 2 empties both pages.
film 1 Title="Alien" Producer="Gordon Carroll"
film 2 Title="Brazil"
start
click optnoteson
click cmdDelete
box question "Reelora Prima" "Are you sure you want to DELETE this record? This file will be removed permanently!!" Yes
see txtProducer ""
see txtTitle ""
see lblPage "PAGE 2"
see file Recpra.Dat "                                                                                                "
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
