# The title "a thing" is stored as "a thing".
start
key Alt+W
type "a thing"
see txtTitle "a thing"
key Alt+S
see file Recpra.Dat "a thing                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                \r\n"
see txtTitle "a thing"
