# The title "The Big  Sleep" is stored as "Big  Sle, The".
start
key Alt+W
type "The Big  Sleep"
see txtTitle "The Big  Sleep"
key Alt+S
see file Recpra.Dat "Big  Sle, The                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                          \r\n"
see txtTitle "Big  Sle, The"
