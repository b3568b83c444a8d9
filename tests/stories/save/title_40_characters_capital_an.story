# The title "AN 1234567890123456789012345678901234567" is stored as ", AN".
start
key Alt+W
type "AN 1234567890123456789012345678901234567"
see txtTitle "AN 1234567890123456789012345678901234567"
key Alt+S
see file Recpra.Dat ", AN                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                   \r\n"
see txtTitle ", AN"
