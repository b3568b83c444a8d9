# A stored title has no article in front and is stored the same by the next save.
start
key Alt+W
type "The Third Man"
key Alt+S
key Alt+E
key Alt+S
see file Recpra.Dat "Third Man, The                                                                                  "
+ "                                                                                                                  "
+ "                                                                                                                  "
+ "                                                                                                                  "
+ "                                                                                                                  "
+ "                                                                                               \r\n"
