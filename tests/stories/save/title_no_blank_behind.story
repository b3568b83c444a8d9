# The title "Theatre" is stored as "Theatre".
start
key Alt+W
type "Theatre"
see txtTitle "Theatre"
key Alt+S
see file Recpra.Dat "Theatre                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                \r\n"
see txtTitle "Theatre"
