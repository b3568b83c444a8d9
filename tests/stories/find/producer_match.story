# Producer search: Match goes on to the next film with the kept text, asks nothing, and turns to page 1; behind the last hit, which is the last film, it tells the end.
film 1 Title="Film 1" Producer="Nobody"
film 2 Title="Film 2" Producer="Anna Karina"
film 3 Title="Film 3" Producer="Banana Split"
film 4 Title="Film 4" Producer="karina"
start
click mnuProducer
input "Search For Producer" "Enter Producer To Search: " "karin"
click optnoteson
click cmdMatch
see lblPage "PAGE 1"
see optNotesoff.Value yes
see state CurrentRecNo 4
see lblHead " Produced  By karina                        "
see state MatchPos 1
see state RowCursor 2
see state MatchKind "Producer"
see state ProducerQuery "KARIN"
see state ResumeTitle 0
see state ResumeDirector 0
see state ResumeStar 0
see state ResumeProducer 1
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
box warning "PRODUCER SEARCH" "End of file!" OK
see state RowCursor 2
see state ProducerQuery "KARIN"
see state ScanRecNo 5
see state ResumeTitle 0
see state ResumeDirector 0
see state ResumeStar 0
see state ResumeProducer 1
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
