# In a collection of one film New takes its slot without a look at it.
film 1 Title="Alien" Director="Ridley Scott"
start
click cmdNew
see state CurrentRecNo 1
see state ScanRecNo 1
see state RecordCount 1
see state NewPending 1
see txtTitle ""
see txtDirector ""
type "Zulu"
click cmdSave
see file Recpra.Dat "Zulu                                                                                            "
+ "                                                                                                                  "
+ "                                                                                                                  "
+ "                                                                                                                  "
+ "                                                                                                                  "
+ "                                                                                               \r\n"
see state RecordCount 2
see state FirstRecordAdjust 1
