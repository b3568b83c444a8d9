# The title "The Third Man" is stored as "Third Man, The".
start
key Alt+W
type "The Third Man"
see txtTitle "The Third Man"
key Alt+S
see file Recpra.Dat "Third Man, The                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                         \r\n"
see txtTitle "Third Man, The"
