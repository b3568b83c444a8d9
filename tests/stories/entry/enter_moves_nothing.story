# Enter moves nothing in a text box.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdNew
key Enter
see focus txtTitle
see txtTitle ""
