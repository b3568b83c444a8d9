# The only film deleted counts as a first save, and the next New takes slot 1.
film 1 Title="Alien"
start
click cmdDelete
box question "Reelora Prima" "Are you sure you want to DELETE this record? This file will be removed permanently!!" Yes
see file Recpra.Dat "                                                                                                "
+ "                                                                                                                  "
+ "                                                                                                                  "
+ "                                                                                                                  "
+ "                                                                                                                  "
+ "                                                                                               \r\n"
see state RecordCount 2
see state FirstRecordAdjust 1
click cmdNew
see state CurrentRecNo 1
see state RecordCount 2
