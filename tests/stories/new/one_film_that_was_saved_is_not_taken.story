# A single film that this run has saved is not taken.
film 1 Title="Alien"
start
click cmdEdit
click cmdSave
click cmdNew
see state CurrentRecNo 2
see state RecordCount 2
see state NewPending 0
type "Brazil"
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
see state FirstRecordAdjust 0
