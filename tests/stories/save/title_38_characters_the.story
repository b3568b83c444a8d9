# The title "The 3456789012345678901234567890123456" is stored as "3456789012345678901234567890123456, The".
start
key Alt+W
type "The 3456789012345678901234567890123456"
see txtTitle "The 3456789012345678901234567890123456"
key Alt+S
see file Recpra.Dat "3456789012345678901234567890123456, The                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                \r\n"
see txtTitle "3456789012345678901234567890123456, The"
