# A film without a title is saved and counts as a free slot.
start
key Alt+W
key Tab
type "Carol Reed"
key Alt+S
see file Recpra.Dat "                                        Carol Reed                                              "
+ "                                                                                                                  "
+ "                                                                                                                  "
+ "                                                                                                                  "
+ "                                                                                                                  "
+ "                                                                                               \r\n"
key Alt+W
see state CurrentRecNo 1
see txtDirector ""
