# The title "An A Team" is stored as " A Team, A".
start
key Alt+W
type "An A Team"
see txtTitle "An A Team"
key Alt+S
see file Recpra.Dat " A Team, A                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                             \r\n"
see txtTitle "A Team, A"
