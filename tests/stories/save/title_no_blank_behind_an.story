# The title "Andromeda" is stored as "Andromeda".
start
key Alt+W
type "Andromeda"
see txtTitle "Andromeda"
key Alt+S
see file Recpra.Dat "Andromeda                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                              \r\n"
see txtTitle "Andromeda"
