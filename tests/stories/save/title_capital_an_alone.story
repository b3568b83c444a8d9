# The title "AN" is stored as ", AN".
start
key Alt+W
type "AN"
see txtTitle "AN"
key Alt+S
see file Recpra.Dat ", AN                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                   \r\n"
see txtTitle ", AN"
