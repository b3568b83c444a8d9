# The title "an ice age" is stored as "an ice age".
start
key Alt+W
type "an ice age"
see txtTitle "an ice age"
key Alt+S
see file Recpra.Dat "an ice age                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                             \r\n"
see txtTitle "an ice age"
