# The title "THE A TEAM" is stored as "E A TEAM, A".
start
key Alt+W
type "THE A TEAM"
see txtTitle "THE A TEAM"
key Alt+S
see file Recpra.Dat "E A TEAM, A                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                            \r\n"
see txtTitle "E A TEAM, A"
