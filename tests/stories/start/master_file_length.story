# What a master file of each length counts; what is there is shown, and nothing is rewritten.
each BYTES CONTENT
row  0     ""
row  1     A
row 324 "Alien                                                                                                       "
+ "                                                                                                                  "
+ "                                           V                                                          "
row 325 "Alien                                                                                                       "
+ "                                                                                                                  "
+ "                                           V                                                           "
row 648 "Alien                                                                                                       "
+ "                                                                                                                  "
+ "                                           V                                                                      "
+ "                                                                                                                  "
+ "                                                                                                                  "
+ "                                                                                    "
row 649 "Alien                                                                                                       "
+ "                                                                                                                  "
+ "                                           V                                                                      "
+ "                                                                                                                  "
+ "                                                                                                                  "
+ "                                                                                     "
row 973 "Alien                                                                                                       "
+ "                                                                                                                  "
+ "                                           V                                                                      "
+ "                                                                                                                  "
+ "                                                                                                                  "
+ "                                                                                                                  "
+ "                                                                                                                  "
+ "                                                                                                                  "
+ "                                                                   "
row 974 "Alien                                                                                                       "
+ "                                                                                                                  "
+ "                                           V                                                                      "
+ "                                                                                                                  "
+ "                                                                                                                  "
+ "                                                                                                                  "
+ "                                                                                                                  "
+ "                                                                                                                  "
+ "                                                                    "

each BYTES RECORDCOUNT SHOWN SHOWN2
row  0     1           ""    ""
row  1     1           A     ""
row  324   1           Alien VHS
row  325   1           Alien VHS
row  648   1           Alien VHS
row  649   1           Alien VHS
row  973   1           Alien VHS
row  974   2           Alien VHS

file Recpra.Dat "{CONTENT}"
start
see state RecordCount {RECORDCOUNT}
see txtTitle "{SHOWN}"
see txtFormat "{SHOWN2}"
see frmPage1 "Reelora Prima Record  1/ {RECORDCOUNT}      Title Non Sorted"
see file Recpra.Dat "{CONTENT}"
