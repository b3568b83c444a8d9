# The title "The The" is stored as "The, The".
start
key Alt+W
type "The The"
see txtTitle "The The"
key Alt+S
see file Recpra.Dat "The, The                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                               \r\n"
see txtTitle "The, The"
