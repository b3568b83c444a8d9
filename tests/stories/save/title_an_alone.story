# The title "An" is stored as ", An".
start
key Alt+W
type "An"
see txtTitle "An"
key Alt+S
see file Recpra.Dat ", An                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                   \r\n"
see txtTitle ", An"
