# The title "the thing" is stored as "the thing".
start
key Alt+W
type "the thing"
see txtTitle "the thing"
key Alt+S
see file Recpra.Dat "the thing                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                              \r\n"
see txtTitle "the thing"
