# The title "A 123456789012345678901234567890123456789" is stored as ", A".
start
key Alt+W
type "A 123456789012345678901234567890123456789"
see txtTitle "A 123456789012345678901234567890123456789"
key Alt+S
see file Recpra.Dat ", A                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                    \r\n"
see txtTitle ", A"
