# The title "A Star Is Born" is stored as "Star Is Born, A".
start
key Alt+W
type "A Star Is Born"
see txtTitle "A Star Is Born"
key Alt+S
see file Recpra.Dat "Star Is Born, A                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                        \r\n"
see txtTitle "Star Is Born, A"
