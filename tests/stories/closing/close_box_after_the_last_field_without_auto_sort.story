# A new film that the last field has saved is no open work, although its entry is not over yet.
file AutoSave "YES\r\n"
films 1 2 Title="Film #" Format="D"
start
click cmdNew
type "Mirror"
click optnoteson
click txtRatings
click txtCost
beep
beep
beep
beep
see focus txtCost
see state NewMode 1
see state ClearOnShow 1
see state EditMode 0
close
end
see film 3 Title "Mirror"
