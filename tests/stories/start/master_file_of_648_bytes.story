# A master file of 648 bytes counts 1 record; what is there is shown, and nothing is rewritten.
file Recpra.Dat "Alien                                                                                                                                                                                                                                                                    V                                                                                                                                                                                                                                                                                                                                                                                              "
start
see state RecordCount 1
see txtTitle "Alien"
see txtFormat "VHS"
see frmPage1 "Reelora Prima Record  1/ 1      Title Non Sorted"
see file Recpra.Dat "Alien                                                                                                                                                                                                                                                                    V                                                                                                                                                                                                                                                                                                                                                                                              "
