# Save from the menu takes page 2 away under the last field, whose flow then saves, sorts and comes back to page 1.
file AutoSave "YES\r\n"
file AutoSort "YES\r\n"
films 1 2 Title="Film #" Format="D"
start
click cmdNew
type "Mirror"
click optnoteson
click txtRatings
type "good"
click mnuSave
beep
beep
beep
beep
see film 3 Title "Mirror"
see film 3 Ratings "good"
see state NewMode 0
see state EditMode 0
see file Last " 3 \r\n"
see focus cmdSave
see lblPage "PAGE 1"
see txtRatings.Visible no
