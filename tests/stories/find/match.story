# Match continues to the next film with the stored text, asks nothing and turns to page 1; past the last hit it
# reports the end.
each SEARCH   FIELD           FILM1  FILM2         FILM3          FILM4  MENU
row  director Director        Nobody "Anna Karina" "Banana Split" karina mnuFindDirector
row  star     Star1           Nobody "Anna Karina" "Banana Split" karina mnuFindStar
row  producer Producer        Nobody "Anna Karina" "Banana Split" karina mnuProducer
row  cinema   Cinematographer Nobody "Anna Karina" "Banana Split" karina mnuCinema
row  writer   Written         Nobody "Anna Karina" "Banana Split" karina mnuWriter
row  music    Music           Nobody "Anna Karina" "Banana Split" karina mnuMusic
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
row  dance    "Search For Choreographer"      "Enter Choreographer To Search: "           karin
row  costume  "Search For Costume Designer"   "Enter Costume Designer To Search: "        karin
row  awards   "Search For Awards"             "Enter Awards To Search: "                  karin
row  mpaa     "Search For MPAA or TV Ratings" "Enter Ratings To Search: "                 pg
row  sound    "Search For Sound"              "Enter Sound To Search: \n\rTHX Dolby Etc." karin

each SEARCH   HEADING                                                                      MATCH    QUERY Director Star
row  director " Viewing Files for Director karina                        "                 Director KARIN 1        0
row  star     "Viewing Files For  karina                        "                          Star     KARIN 0        1
row  producer " Produced  By karina                        "                               Producer KARIN 0        0
row  cinema   "    Viewing Files by Cinematographers"                                      Cinema   KARIN 0        0
row  writer   " Written by karina"                                                         Writer   KARIN 0        0
row  music    "   Music Composed By karina                        "                        Music    KARIN 0        0
row  dance    "Choreography By karina                        "                             Dance    KARIN 0        0
row  costume  " Viewing For Costume Designer karina                        "               Costume  KARIN 0        0
row  awards   " Awards/Notes karina                                                      " Awards   KARIN 0        0
row  mpaa     "MPAA Rating is  pg   "                                                      MPAA     PG    0        0
row  sound    "Viewing Sound Recording in karina"                                          Sound    KARIN 0        0

each SEARCH   Producer Cinema Writer Music Dance Costume Awards MPAA Sound BOXTITLE
row  director 0        0      0      0     0     0       0      0    0     "DIRECTOR SEARCH"
row  star     0        0      0      0     0     0       0      0    0     "STAR  SEARCH"
row  producer 1        0      0      0     0     0       0      0    0     "PRODUCER SEARCH"
row  cinema   0        1      0      0     0     0       0      0    0     "CINEMATOGRAPHER SEARCH"
row  writer   0        0      1      0     0     0       0      0    0     "WRITER SEARCH"
row  music    0        0      0      1     0     0       0      0    0     "MUSIC COMPOSER SEARCH"
row  dance    0        0      0      0     1     0       0      0    0     "CHOREOGRAPHER SEARCH"
row  costume  0        0      0      0     0     1       0      0    0     "COSTUME DESIGNER SEARCH"
row  awards   0        0      0      0     0     0       1      0    0     "AWARDS SEARCH"
row  mpaa     0        0      0      0     0     0       0      1    0     "MPAA RATINGS SEARCH"
row  sound    0        0      0      0     0     0       0      0    1     "SOUND RECORDING SEARCH"

film 1 Title="Film 1" {FIELD}="{FILM1}"
film 2 Title="Film 2" {FIELD}="{FILM2}"
film 3 Title="Film 3" {FIELD}="{FILM3}"
film 4 Title="Film 4" {FIELD}="{FILM4}"
start
click {MENU}
input "{TITLE}" "{PROMPT}" "{ANSWER}"
click optnoteson
click cmdMatch
see lblPage "PAGE 1"
see optNotesoff.Value yes
see state CurrentRecNo 4
see lblHead "{HEADING}"
see state MatchPos 1
see state RowCursor 2
see state MatchKind "{MATCH}"
see state {MATCH}Query "{QUERY}"
see state ResumeTitle 0
see state ResumeDirector {Director}
see state ResumeStar {Star}
see state ResumeProducer {Producer}
see state ResumeCinema {Cinema}
see state ResumeWriter {Writer}
see state ResumeMusic {Music}
see state ResumeArt 0
see state ResumeDance {Dance}
see state ResumeCostume {Costume}
see state ResumeAwards {Awards}
see state ResumeMPAA {MPAA}
see state ResumeSound {Sound}
click cmdMatch
beep
box warning "{BOXTITLE}" "End of file!" OK
see state RowCursor 2
see state {MATCH}Query "{QUERY}"
see state ScanRecNo 5
see state ResumeTitle 0
see state ResumeDirector {Director}
see state ResumeStar {Star}
see state ResumeProducer {Producer}
see state ResumeCinema {Cinema}
see state ResumeWriter {Writer}
see state ResumeMusic {Music}
see state ResumeArt 0
see state ResumeDance {Dance}
see state ResumeCostume {Costume}
see state ResumeAwards {Awards}
see state ResumeMPAA {MPAA}
see state ResumeSound {Sound}
see state CurrentRecNo 1
see state MatchKind ""
see state SearchState 0
see state FindPending 0
see lblHead "To write a new record click \"New\" button or ALT \"W\""
