# The title "AN 123456789012345678901234567890123456" is stored as ", AN".
start
key Alt+W
type "AN 123456789012345678901234567890123456"
see txtTitle "AN 123456789012345678901234567890123456"
key Alt+S
see file Recpra.Dat ", AN                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                   \r\n"
see txtTitle ", AN"
