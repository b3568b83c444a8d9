# Sound search that finds nothing says so with the text in capitals and resets.
film 1 Title="Film 1" Sound="Nobody"
film 2 Title="Film 2" Sound="Anna Karina"
film 3 Title="Film 3" Sound="Banana Split"
film 4 Title="Film 4" Sound="karina"
start
click cmdNext
click mnuSound
input "Search For Sound" "Enter Sound To Search: \n\rTHX Dolby Etc." "xYz"
beep
box warning "SOUND RECORDING SEARCH" "The search for \"XYZ\" was not found. " OK
see state RowCursor 0
see state MatchPos 0
see state ScanRecNo 5
see state KeyFilePos 0
see state SoundQuery "XYZ"
see state ResumeTitle 0
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
