# A new film that Reset saves leaves the view that it was begun in.
film 1 Title="Area 51" Format="V" Genre="SF"
film 2 Title="Plan 49" Format="L" Genre="DR"
sorted
start
click mnuByTitle
click cmdNext
see state KeyFilePos 2
click cmdNew
type "Zulu"
see state ViewKind "Title"
key Alt+R
box question "Reelora Prima" "You have not saved your work.  To save it now hit Yes." Yes
see state PromptText "You have not saved your work.  To save it now hit Yes."
see film 3 Title "Zulu"
see state ViewKind ""
see state KeyFilePos 0
see state ViewState 0
see frmPage1 "Reelora Prima Record  1/ 3      Title Non Sorted"
see lblHead "To write a new record click \"New\" button or ALT \"W\""
see lblSave.Visible no
see focus cmdReset
