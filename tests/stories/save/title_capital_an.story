# The title "AN ICE AGE" is stored as "ICE AGE, AN".
start
key Alt+W
type "AN ICE AGE"
see txtTitle "AN ICE AGE"
key Alt+S
see file Recpra.Dat "ICE AGE, AN                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                            \r\n"
see txtTitle "ICE AGE, AN"
