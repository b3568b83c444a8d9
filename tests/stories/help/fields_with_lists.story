# A field that opens its list: the topic is that of the field, or of the list where it has one of its own.
film 1 Title="Solaris" Format="L"
start
click cmdNew
click txtFormat
see focus List3
key F1
help 490
pick List3 "Laser"
click txtLetter
see focus List4
key F1
help 500
click txtCLV1
see focus List5
key F1
help 17
click txtColor1
see focus List6
key F1
help 18
