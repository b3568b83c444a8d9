# A title too long is cut before anything else looks at it.
film 1 Title="Alien"
film 2 Title="Brazil"
start
click cmdEdit
click txtTitle
clear
type "The 3456789012345678901234567890123456789  "
click cmdSave
see film 1 Title ", The"
