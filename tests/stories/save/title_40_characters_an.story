# The title "An 1234567890123456789012345678901234567" is stored as ", An".
start
key Alt+W
type "An 1234567890123456789012345678901234567"
see txtTitle "An 1234567890123456789012345678901234567"
key Alt+S
see file Recpra.Dat ", An                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                   \r\n"
see txtTitle ", An"
