# Edit on page 2 shows the disc mode and the colour there.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click optnoteson
see txtCLV1.Visible no
see txtColor1.Visible no
click cmdEdit
see txtCLV1.Visible yes
see txtColor1.Visible yes
see txtTitle.Visible no
