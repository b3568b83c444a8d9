# The box of the disc mode keeps its state at a film without format as long as its own text does not change.
film 1 Title="Alien" Format="L" CLV1="CLV"
film 2 Title="Brazil" CLV1="CLV"
start
see txtCLV1.Enabled yes
click mnuFile
input "Reelora Prima" "Enter File No To Search:" "2"
see txtFormat ""
see txtCLV1.Enabled yes
