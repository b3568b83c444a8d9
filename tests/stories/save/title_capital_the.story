# The title "THE THIN MAN" is stored as "THIN MAN, THE".
start
key Alt+W
type "THE THIN MAN"
see txtTitle "THE THIN MAN"
key Alt+S
see file Recpra.Dat "THIN MAN, THE                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                          \r\n"
see txtTitle "THIN MAN, THE"
