# In a new film Enter, Space and a letter close the format list; the number of discs is next.
each KEY_NAME KEY
row  enter    Enter
row  space    Space
row  x        x

film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdNew
click txtFormat
key Down
key {KEY}
see txtFormat "Laser"
see List3.Visible no
see List3.Items
see focus txtNumReel
see lblSorting "Save Work When Finished!"
see lblSorting.Visible yes
