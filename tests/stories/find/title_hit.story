# Title search: small letters find the first film that contains them anywhere; all that it leaves behind.
film 1 Title="Nobody"
film 2 Title="Anna Karina"
film 3 Title="Banana Split"
film 4 Title="karina"
start
click mnuFindTitle
input "Search For Title" "Enter Title. To Search: " "karin"
see state CurrentRecNo 2
see state ScanRecNo 2
see txtTitle "Anna Karina"
see lblHead "    Viewing Title  - Anna Karina                             "
see frmPage1 "Reelora Prima Record  2/ 4      Title Non Sorted"
see state MatchKind "Title"
see state MatchPos 6
see state SearchState 1
see state FindPending 1
see state RowCursor 1
see state KeyFilePos 0
see state ViewKind ""
see state RecordFound 0
see state TitleQuery "KARIN"
see state ArtMatchMark 0
see cmdMatch.Enabled yes
see cmdMatch "&Match"
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
