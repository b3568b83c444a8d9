# A search in small letters finds the first film that contains them anywhere; all that it leaves behind.
each SEARCH   FIELD           FILM1  FILM2         FILM3          FILM4  MENU
row  director Director        Nobody "Anna Karina" "Banana Split" karina mnuFindDirector
row  star     Star1           Nobody "Anna Karina" "Banana Split" karina mnuFindStar
row  producer Producer        Nobody "Anna Karina" "Banana Split" karina mnuProducer
row  cinema   Cinematographer Nobody "Anna Karina" "Banana Split" karina mnuCinema
row  writer   Written         Nobody "Anna Karina" "Banana Split" karina mnuWriter
row  music    Music           Nobody "Anna Karina" "Banana Split" karina mnuMusic
row  art      SetDirection    Nobody "Anna Karina" "Banana Split" karina mnuArt
row  dance    Choreography    Nobody "Anna Karina" "Banana Split" karina mnuDance
row  costume  Costume         Nobody "Anna Karina" "Banana Split" karina mnuCostume
row  awards   Awards          Nobody "Anna Karina" "Banana Split" karina mnuAwards
row  mpaa     Rating          R      PG            PG-13          pg     mnuMPAA
row  sound    Sound           Nobody "Anna Karina" "Banana Split" karina mnuSound

each SEARCH   TITLE                           PROMPT                                      ANSWER
row  director "Search For Director"           "Enter Director. To Search: "               karin
row  star     "Search For Star"               "Enter Star To Search: "                    karin
row  producer "Search For Producer"           "Enter Producer To Search: "                karin
row  cinema   "Search For Cinematographer"    "Enter Cinematographer To Search: "         karin
row  writer   "Search For Writer"             "Enter Writer To Search: "                  karin
row  music    "Search For Music Composer"     "Enter Music Composer To Search: "          karin
row  art      "Search Art Director"           "Enter Art Director To Search: "            karin
row  dance    "Search For Choreographer"      "Enter Choreographer To Search: "           karin
row  costume  "Search For Costume Designer"   "Enter Costume Designer To Search: "        karin
row  awards   "Search For Awards"             "Enter Awards To Search: "                  karin
row  mpaa     "Search For MPAA or TV Ratings" "Enter Ratings To Search: "                 pg
row  sound    "Search For Sound"              "Enter Sound To Search: \n\rTHX Dolby Etc." karin

each SEARCH   HEADING                                                                      MATCH    POSITION QUERY
row  director " Viewing Files for Director Anna Karina                   "                 Director 6        KARIN
row  star     "Viewing Files For  Anna Karina                   "                          Star     6        KARIN
row  producer " Produced  By Anna Karina                   "                               Producer 6        KARIN
row  cinema   "    Viewing Files by Cinematographers"                                      Cinema   6        KARIN
row  writer   " Written by Anna Karina"                                                    Writer   6        KARIN
row  music    "   Music Composed By Anna Karina                   "                        Music    6        KARIN
row  art      "    Viewing Files by Art Direction"                                         Art      6        KARIN
row  dance    "Choreography By Anna Karina                   "                             Dance    6        KARIN
row  costume  " Viewing For Costume Designer Anna Karina                   "               Costume  6        KARIN
row  awards   " Awards/Notes Anna Karina                                                 " Awards   6        KARIN
row  mpaa     "MPAA Rating is  PG   "                                                      MPAA     1        PG
row  sound    "Viewing Sound Recording in Anna Karina"                                     Sound    6        KARIN

film 1 Title="Film 1" {FIELD}="{FILM1}"
film 2 Title="Film 2" {FIELD}="{FILM2}"
film 3 Title="Film 3" {FIELD}="{FILM3}"
film 4 Title="Film 4" {FIELD}="{FILM4}"
start
click {MENU}
input "{TITLE}" "{PROMPT}" "{ANSWER}"
see state CurrentRecNo 2
see state ScanRecNo 2
see txtTitle "Film 2"
see lblHead "{HEADING}"
see frmPage1 "Reelora Prima Record  2/ 4      Title Non Sorted"
see state MatchKind "{MATCH}"
see state MatchPos {POSITION}
see state SearchState 1
see state FindPending 0
see state RowCursor 1
see state KeyFilePos 0
see state ViewKind ""
see state RecordFound 0
see state {MATCH}Query "{QUERY}"
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
