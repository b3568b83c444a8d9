# The title "THE 123456789012345678901234567890123456" is stored as ", THE".
start
key Alt+W
type "THE 123456789012345678901234567890123456"
see txtTitle "THE 123456789012345678901234567890123456"
key Alt+S
see file Recpra.Dat ", THE                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                  \r\n"
see txtTitle ", THE"
