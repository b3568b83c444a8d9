# What the producer of a new film says with Auto Save NO and Auto Sort NO.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
file AutoSave "NO\r\n"
file AutoSort "NO\r\n"
start
click cmdNew
click txtColor1
see lblSorting.Visible no
key Enter
see focus txtProducer
see lblSorting.Visible yes
see lblSorting "AUTO SAVE IS OFF!  When the last text box is filled in and the tab key pressed, you will have to manually save and sort this record."
see lblSorting.FontSize 9.75
