# The title "A  Star" is stored as " S, A".
start
key Alt+W
type "A  Star"
see txtTitle "A  Star"
key Alt+S
see file Recpra.Dat " S, A                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                  \r\n"
see txtTitle "S, A"
