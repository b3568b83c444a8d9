# The title "The A Team" is stored as "e A Team, A".
start
key Alt+W
type "The A Team"
see txtTitle "The A Team"
key Alt+S
see file Recpra.Dat "e A Team, A                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                            \r\n"
see txtTitle "e A Team, A"
