# Costume search: Match goes on to the next film with the kept text, asks nothing, and turns to page 1; behind the last hit, which is the last film, it tells the end.
film 1 Title="Film 1" Costume="Nobody"
film 2 Title="Film 2" Costume="Anna Karina"
film 3 Title="Film 3" Costume="Banana Split"
film 4 Title="Film 4" Costume="karina"
start
click mnuCostume
input "Search For Costume Designer" "Enter Costume Designer To Search: " "karin"
click optnoteson
click cmdMatch
see lblPage "PAGE 1"
see optNotesoff.Value yes
see state CurrentRecNo 4
see lblHead " Viewing For Costume Designer karina                        "
see state MatchPos 1
see state RowCursor 2
see state MatchKind "Costume"
see state CostumeQuery "KARIN"
see state ResumeTitle 0
see state ResumeDirector 0
see state ResumeStar 0
see state ResumeProducer 0
see state ResumeCinema 0
see state ResumeWriter 0
see state ResumeMusic 0
see state ResumeArt 0
see state ResumeDance 0
see state ResumeCostume 1
see state ResumeAwards 0
see state ResumeMPAA 0
see state ResumeSound 0
click cmdMatch
beep
box warning "COSTUME DESIGNER SEARCH" "End of file!" OK
see state RowCursor 2
see state CostumeQuery "KARIN"
see state ScanRecNo 5
see state ResumeTitle 0
see state ResumeDirector 0
see state ResumeStar 0
see state ResumeProducer 0
see state ResumeCinema 0
see state ResumeWriter 0
see state ResumeMusic 0
see state ResumeArt 0
see state ResumeDance 0
see state ResumeCostume 1
see state ResumeAwards 0
see state ResumeMPAA 0
see state ResumeSound 0
see state CurrentRecNo 1
see state MatchKind ""
see state SearchState 0
see state FindPending 0
see lblHead "To write a new record click \"New\" button or ALT \"W\""
