# The title "A" is stored as ", A".
start
key Alt+W
type "A"
see txtTitle "A"
key Alt+S
see file Recpra.Dat ", A                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                    \r\n"
see txtTitle ", A"
