# The title "The 1234567890123456789012345678901234567" is stored as ", The".
start
key Alt+W
type "The 1234567890123456789012345678901234567"
see txtTitle "The 1234567890123456789012345678901234567"
key Alt+S
see file Recpra.Dat ", The                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                  \r\n"
see txtTitle ", The"
