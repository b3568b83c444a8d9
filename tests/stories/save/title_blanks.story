# The title "   " is stored as "".
start
key Alt+W
type "   "
see txtTitle "   "
key Alt+S
see file Recpra.Dat "                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                       \r\n"
see txtTitle ""
