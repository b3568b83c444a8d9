# The slot is written twice: blanks first, then the same with its line end; the journal holds the second write.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdNext
click cmdDelete
box question "Reelora Prima" "Are you sure you want to DELETE this record? This file will be removed permanently!!" Yes
see file .reelora/journal "REELDONERecpra.Dat\x00\x00\x00\x00\x00\x00\x00\x00\x00\x00\x00\x00\x00\x00\x00\x00\x00\x00"
+ "\x00\x00\x00\x00\x02\x00\x00\x00\x00\x00\x00\x00\x12\x05\x00\x00\x00\x00\x00\x00\x89\x02\x00\x00\x00\x00\x00\x00  "
+ "                                                                                                                  "
+ "                                                                                                                  "
+ "                                                                                                                  "
+ "                                                                                                                  "
+ "                                                                                                                  "
+ "                                                                                                                  "
+ "                                                                                                                  "
+ "                                                                                                                  "
+ "                                                                                                                  "
+ "                                                                                                                  "
+ "                                                                                                                  "
+ "                                        \r\n\x99V\xCD\x14S\xDCX\xD6"
