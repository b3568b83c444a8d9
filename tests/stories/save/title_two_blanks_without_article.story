# The title "Big  Sleep" is stored as "Big  Sleep".
start
key Alt+W
type "Big  Sleep"
see txtTitle "Big  Sleep"
key Alt+S
see file Recpra.Dat "Big  Sleep                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                             \r\n"
see txtTitle "Big  Sleep"
