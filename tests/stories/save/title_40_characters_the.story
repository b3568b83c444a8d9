# The title "The 123456789012345678901234567890123456" is stored as ", The".
start
key Alt+W
type "The 123456789012345678901234567890123456"
see txtTitle "The 123456789012345678901234567890123456"
key Alt+S
see file Recpra.Dat ", The                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                  \r\n"
see txtTitle ", The"
