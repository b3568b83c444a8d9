# A film without format shows an empty box, and the disc mode box keeps the state that it had.
film 1 Title="Alien" Format="L" CLV1="CLV"
film 2 Title="Brazil" CLV1="CLV"
start
see txtCLV1.Enabled yes
click mnuFile
input "Reelora Prima" "Enter File No To Search:" "2"
see txtFormat ""
see txtCLV1 "CLV"
