# The title "THE 12345678901234567890123456789012345" is stored as ", THE".
start
key Alt+W
type "THE 12345678901234567890123456789012345"
see txtTitle "THE 12345678901234567890123456789012345"
key Alt+S
see file Recpra.Dat ", THE                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                  \r\n"
see txtTitle ", THE"
