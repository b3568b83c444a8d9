# The title "THE AN AFFAIR" is stored as " AN AFFAIR, AN".
start
key Alt+W
type "THE AN AFFAIR"
see txtTitle "THE AN AFFAIR"
key Alt+S
see file Recpra.Dat " AN AFFAIR, AN                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                         \r\n"
see txtTitle "AN AFFAIR, AN"
