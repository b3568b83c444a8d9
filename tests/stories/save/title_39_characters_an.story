# The title "An 123456789012345678901234567890123456" is stored as ", An".
start
key Alt+W
type "An 123456789012345678901234567890123456"
see txtTitle "An 123456789012345678901234567890123456"
key Alt+S
see file Recpra.Dat ", An                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                   \r\n"
see txtTitle ", An"
