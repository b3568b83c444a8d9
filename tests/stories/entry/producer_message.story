# What the producer of a new film says under each pair of settings.
each SETTINGS CONTENT   CONTENT2
row  both_off "NO\r\n"  "NO\r\n"
row  both_on  "YES\r\n" "YES\r\n"
row  save_off "NO\r\n"  "YES\r\n"
row  sort_off "YES\r\n" "NO\r\n"

each SETTINGS SEEN
row both_off "AUTO SAVE IS OFF!  When the last text box is filled in and the tab key pressed, you will have to "
+ "manually save and sort this record."
row  both_on  "When the last text box is filled in and the tab key pressed,  this record will be auto saved and sorted."
row save_off "AUTO SAVE IS OFF!  When the last text box is filled in and the tab key pressed, you will have to "
+ "manually save and sort this record."
row sort_off "You are inputting onto page 1.   When all entries on this page are complete,  page 2  will come up "
+ "automatically."

each SETTINGS FONTSIZE
row  both_off 9.75
row  both_on  14
row  save_off 9.75
row  sort_off 9.75

film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
file AutoSave "{CONTENT}"
file AutoSort "{CONTENT2}"
start
click cmdNew
click txtColor1
see lblSorting.Visible no
key Enter
see focus txtProducer
see lblSorting.Visible yes
see lblSorting "{SEEN}"
see lblSorting.FontSize {FONTSIZE}
