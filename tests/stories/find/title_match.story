# Title search: Match continues to the next film with the stored text, asks nothing, and turns to page 1; past the
# last hit, which is the last film, it reports the end.
film 1 Title="Nobody"
film 2 Title="Anna Karina"
film 3 Title="Banana Split"
film 4 Title="karina"
start
click mnuFindTitle
input "Search For Title" "Enter Title. To Search: " "karin"
click optnoteson
click cmdMatch
see lblPage "PAGE 1"
see optNotesoff.Value yes
see state CurrentRecNo 4
see lblHead "    Viewing Title  - karina                                  "
see state MatchPos 1
see state RowCursor 2
see state MatchKind "Title"
see state TitleQuery "KARIN"
see state ResumeTitle 1
see state ResumeDirector 0
see state ResumeStar 0
see state ResumeProducer 0
see state ResumeCinema 0
see state ResumeWriter 0
see state ResumeMusic 0
see state ResumeArt 0
see state ResumeDance 0
see state ResumeCostume 0
see state ResumeAwards 0
see state ResumeMPAA 0
see state ResumeSound 0
click cmdMatch
beep
box warning "TITLE SEARCH" "End of file!" OK
see state RowCursor 2
see state TitleQuery "KARIN"
see state ScanRecNo 5
see state ResumeTitle 1
see state ResumeDirector 0
see state ResumeStar 0
see state ResumeProducer 0
see state ResumeCinema 0
see state ResumeWriter 0
see state ResumeMusic 0
see state ResumeArt 0
see state ResumeDance 0
see state ResumeCostume 0
see state ResumeAwards 0
see state ResumeMPAA 0
see state ResumeSound 0
see state CurrentRecNo 1
see state MatchKind ""
see state SearchState 0
see state FindPending 0
see lblHead "To write a new record click \"New\" button or ALT \"W\""
