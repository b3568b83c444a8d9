# The title "THE" is stored as ", THE".
start
key Alt+W
type "THE"
see txtTitle "THE"
key Alt+S
see file Recpra.Dat ", THE                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                  \r\n"
see txtTitle ", THE"
