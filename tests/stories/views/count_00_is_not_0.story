# A count other than the text 0 lets the view go on, whatever it is.
film 1 Title="Alien" Format="L"
key Laserpra.Dat "Alien" 1
file Laserpra " 00\r\n"
start
click mnuByLaser
see txtTitle "Alien"
see state LaserCount "00"
