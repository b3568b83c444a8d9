# A search that finds nothing says so, naming the text, and resets.
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

each SEARCH   TITLE                           PROMPT                                      BOXTITLE
row  director "Search For Director"           "Enter Director. To Search: "               "DIRECTOR SEARCH"
row  star     "Search For Star"               "Enter Star To Search: "                    "STAR 1 SEARCH"
row  producer "Search For Producer"           "Enter Producer To Search: "                "PRODUCER SEARCH"
row  cinema   "Search For Cinematographer"    "Enter Cinematographer To Search: "         "CINEMATOGRAPHER SEARCH"
row  writer   "Search For Writer"             "Enter Writer To Search: "                  "WRITER SEARCH"
row  music    "Search For Music Composer"     "Enter Music Composer To Search: "          "MUSIC COMPOSER SEARCH"
row  art      "Search Art Director"           "Enter Art Director To Search: "            "ART DIRECTOR SEARCH"
row  dance    "Search For Choreographer"      "Enter Choreographer To Search: "           "CHOREOGRAPHER SEARCH"
row  costume  "Search For Costume Designer"   "Enter Costume Designer To Search: "        "CHOREOGRAPHER SEARCH"
row  awards   "Search For Awards"             "Enter Awards To Search: "                  "AWARDS SEARCH"
row  mpaa     "Search For MPAA or TV Ratings" "Enter Ratings To Search: "                 "MPAA RATINGS SEARCH"
row  sound    "Search For Sound"              "Enter Sound To Search: \n\rTHX Dolby Etc." "SOUND RECORDING SEARCH"

each SEARCH   TEXT                                     STATE
row  director "The search for \"XYZ\" was not found. " DirectorQuery
row  star     "The search for \"xYz\" was not found."  StarQuery
row  producer "The search for \"XYZ\" was not found. " ProducerQuery
row  cinema   "The search for \"XYZ\" was not found. " CinemaQuery
row  writer   "The search for \"XYZ\" was not found. " WriterQuery
row  music    "The search for \"XYZ\" was not found. " MusicQuery
row  art      "The search for \"XYZ\" was not found. " ArtQuery
row  dance    "The search for \"XYZ\" was not found. " DanceQuery
row  costume  "The search for \"XYZ\" was not found. " CostumeQuery
row  awards   "The search for \"XYZ\" was not found. " AwardsQuery
row  mpaa     "The search for \"XYZ\" was not found. " MPAAQuery
row  sound    "The search for \"XYZ\" was not found. " SoundQuery

film 1 Title="Film 1" {FIELD}="{FILM1}"
film 2 Title="Film 2" {FIELD}="{FILM2}"
film 3 Title="Film 3" {FIELD}="{FILM3}"
film 4 Title="Film 4" {FIELD}="{FILM4}"
start
click cmdNext
click {MENU}
input "{TITLE}" "{PROMPT}" "xYz"
beep
box warning "{BOXTITLE}" "{TEXT}" OK
see state RowCursor 0
see state MatchPos 0
see state ScanRecNo 5
see state KeyFilePos 0
see state {STATE} "XYZ"
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
