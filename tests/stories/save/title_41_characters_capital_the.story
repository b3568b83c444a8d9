# The title "THE 1234567890123456789012345678901234567" is stored as ", THE".
start
key Alt+W
type "THE 1234567890123456789012345678901234567"
see txtTitle "THE 1234567890123456789012345678901234567"
key Alt+S
see file Recpra.Dat ", THE                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                  \r\n"
see txtTitle ", THE"
