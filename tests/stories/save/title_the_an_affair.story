# The title "The An Affair" is stored as " An Affair, An".
start
key Alt+W
type "The An Affair"
see txtTitle "The An Affair"
key Alt+S
see file Recpra.Dat " An Affair, An                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                         \r\n"
see txtTitle "An Affair, An"
