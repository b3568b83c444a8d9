# In a new film the pointer over the format keeps the word in the box, and the save writes its letter.
each FORMAT LETTER
row  DVD    D
row  Laser  L
row  VHS    V

film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdNew
move txtFormat
see txtFormat ""
click txtFormat
pick List3 "{FORMAT}"
move txtFormat
see txtFormat "{FORMAT}"
see List3.Visible no
click cmdSave
see film 3 Format "{LETTER}"
see txtFormat "{FORMAT}"
