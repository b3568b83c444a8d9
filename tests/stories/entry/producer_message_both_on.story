# What the producer of a new film says with Auto Save YES and Auto Sort YES.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
file AutoSave "YES\r\n"
file AutoSort "YES\r\n"
start
click cmdNew
click txtColor1
see lblSorting.Visible no
key Enter
see focus txtProducer
see lblSorting.Visible yes
see lblSorting "When the last text box is filled in and the tab key pressed,  this record will be auto saved and sorted."
see lblSorting.FontSize 14
