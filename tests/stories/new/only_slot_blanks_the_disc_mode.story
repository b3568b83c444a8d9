# New over the only film blanks its disc mode, with the other boxes.
film 1 Title="Solaris" Format="L" CLV1="CLV" Color1="Color"
start
see txtCLV1 "CLV"
click cmdNew
see txtTitle ""
see txtCLV1 "   "
see txtColor1 ""
