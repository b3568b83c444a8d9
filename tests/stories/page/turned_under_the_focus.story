# A page turned under a field hands the focus on once, to the first field of the other page.
films 1 2 Title="Film #" Format="D"
start
click cmdEdit
click txtTitle
key Alt+G
see focus txtProducer
see lblPage "PAGE 2"
