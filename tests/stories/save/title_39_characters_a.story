# The title "A 1234567890123456789012345678901234567" is stored as ", A".
start
key Alt+W
type "A 1234567890123456789012345678901234567"
see txtTitle "A 1234567890123456789012345678901234567"
key Alt+S
see file Recpra.Dat ", A                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                    \r\n"
see txtTitle ", A"
