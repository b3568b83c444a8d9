# The title "A 12345678901234567890123456789012345678" is stored as ", A".
start
key Alt+W
type "A 12345678901234567890123456789012345678"
see txtTitle "A 12345678901234567890123456789012345678"
key Alt+S
see file Recpra.Dat ", A                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                    \r\n"
see txtTitle ", A"
