# The title "The" is stored as ", The".
start
key Alt+W
type "The"
see txtTitle "The"
key Alt+S
see file Recpra.Dat ", The                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                  \r\n"
see txtTitle ", The"
