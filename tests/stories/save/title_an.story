# The title "An Ice Age" is stored as "Ice Age, An".
start
key Alt+W
type "An Ice Age"
see txtTitle "An Ice Age"
key Alt+S
see file Recpra.Dat "Ice Age, An                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                            \r\n"
see txtTitle "Ice Age, An"
