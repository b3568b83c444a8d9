# The title "AN A TEAM" is stored as " A TEAM, A".
start
key Alt+W
type "AN A TEAM"
see txtTitle "AN A TEAM"
key Alt+S
see file Recpra.Dat " A TEAM, A                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                             \r\n"
see txtTitle "A TEAM, A"
