# The title "An 12345678901234567890123456789012345678" is stored as ", An".
start
key Alt+W
type "An 12345678901234567890123456789012345678"
see txtTitle "An 12345678901234567890123456789012345678"
key Alt+S
see file Recpra.Dat ", An                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                   \r\n"
see txtTitle ", An"
