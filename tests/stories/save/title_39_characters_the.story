# The title "The 12345678901234567890123456789012345" is stored as ", The".
start
key Alt+W
type "The 12345678901234567890123456789012345"
see txtTitle "The 12345678901234567890123456789012345"
key Alt+S
see file Recpra.Dat ", The                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                  \r\n"
see txtTitle ", The"
