# A search ignores case, accented letters included.
each SEARCH   FIELD           FILM1  FILM2 FILM3 FILM4 MENU            TITLE
row  director Director        nobody pere  père  PÈRE  mnuFindDirector "Search For Director"
row  star     Star1           nobody pere  père  PÈRE  mnuFindStar     "Search For Star"
row  producer Producer        nobody pere  père  PÈRE  mnuProducer     "Search For Producer"
row  cinema   Cinematographer nobody pere  père  PÈRE  mnuCinema       "Search For Cinematographer"
row  writer   Written         nobody pere  père  PÈRE  mnuWriter       "Search For Writer"
row  music    Music           nobody pere  père  PÈRE  mnuMusic        "Search For Music Composer"
row  dance    Choreography    nobody pere  père  PÈRE  mnuDance        "Search For Choreographer"
row  costume  Costume         nobody pere  père  PÈRE  mnuCostume      "Search For Costume Designer"
row  awards   Awards          nobody pere  père  PÈRE  mnuAwards       "Search For Awards"
row  mpaa     Rating          r      x     Ré    RÉ    mnuMPAA         "Search For MPAA or TV Ratings"
row  sound    Sound           nobody pere  père  PÈRE  mnuSound        "Search For Sound"

each SEARCH   PROMPT                                      ANSWER
row  director "Enter Director. To Search: "               pÈr
row  star     "Enter Star To Search: "                    pÈr
row  producer "Enter Producer To Search: "                pÈr
row  cinema   "Enter Cinematographer To Search: "         pÈr
row  writer   "Enter Writer To Search: "                  pÈr
row  music    "Enter Music Composer To Search: "          pÈr
row  dance    "Enter Choreographer To Search: "           pÈr
row  costume  "Enter Costume Designer To Search: "        pÈr
row  awards   "Enter Awards To Search: "                  pÈr
row  mpaa     "Enter Ratings To Search: "                 rÉ
row  sound    "Enter Sound To Search: \n\rTHX Dolby Etc." pÈr

film 1 Title="Film 1" {FIELD}="{FILM1}"
film 2 Title="Film 2" {FIELD}="{FILM2}"
film 3 Title="Film 3" {FIELD}="{FILM3}"
film 4 Title="Film 4" {FIELD}="{FILM4}"
start
click {MENU}
input "{TITLE}" "{PROMPT}" "{ANSWER}"
see state CurrentRecNo 3
click cmdMatch
see state CurrentRecNo 4
see state RowCursor 2
