# The title "AN 12345678901234567890123456789012345678" is stored as ", AN".
start
key Alt+W
type "AN 12345678901234567890123456789012345678"
see txtTitle "AN 12345678901234567890123456789012345678"
key Alt+S
see file Recpra.Dat ", AN                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                   \r\n"
see txtTitle ", AN"
