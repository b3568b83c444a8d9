# The title "A STAR IS BORN" is stored as "STAR IS BORN, A".
start
key Alt+W
type "A STAR IS BORN"
see txtTitle "A STAR IS BORN"
key Alt+S
see file Recpra.Dat "STAR IS BORN, A                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                        \r\n"
see txtTitle "STAR IS BORN, A"
