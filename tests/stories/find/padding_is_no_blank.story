# A blank after the sought word does not match the field's padding; leading blanks of the field do not count.
each SEARCH   FIELD           FILM1         ANSWER MENU            TITLE
row  director Director        "Anna Karina" karina mnuFindDirector "Search For Director"
row  star     Star1           "Anna Karina" karina mnuFindStar     "Search For Star"
row  producer Producer        "Anna Karina" karina mnuProducer     "Search For Producer"
row  cinema   Cinematographer "Anna Karina" karina mnuCinema       "Search For Cinematographer"
row  writer   Written         "Anna Karina" karina mnuWriter       "Search For Writer"
row  music    Music           "Anna Karina" karina mnuMusic        "Search For Music Composer"
row  art      SetDirection    "Anna Karina" karina mnuArt          "Search Art Director"
row  dance    Choreography    "Anna Karina" karina mnuDance        "Search For Choreographer"
row  costume  Costume         "Anna Karina" karina mnuCostume      "Search For Costume Designer"
row  awards   Awards          "Anna Karina" karina mnuAwards       "Search For Awards"
row  mpaa     Rating          PG            pg     mnuMPAA         "Search For MPAA or TV Ratings"
row  sound    Sound           "Anna Karina" karina mnuSound        "Search For Sound"

each SEARCH   PROMPT                                      BOXTITLE
row  director "Enter Director. To Search: "               "DIRECTOR SEARCH"
row  star     "Enter Star To Search: "                    "STAR 1 SEARCH"
row  producer "Enter Producer To Search: "                "PRODUCER SEARCH"
row  cinema   "Enter Cinematographer To Search: "         "CINEMATOGRAPHER SEARCH"
row  writer   "Enter Writer To Search: "                  "WRITER SEARCH"
row  music    "Enter Music Composer To Search: "          "MUSIC COMPOSER SEARCH"
row  art      "Enter Art Director To Search: "            "ART DIRECTOR SEARCH"
row  dance    "Enter Choreographer To Search: "           "CHOREOGRAPHER SEARCH"
row  costume  "Enter Costume Designer To Search: "        "CHOREOGRAPHER SEARCH"
row  awards   "Enter Awards To Search: "                  "AWARDS SEARCH"
row  mpaa     "Enter Ratings To Search: "                 "MPAA RATINGS SEARCH"
row  sound    "Enter Sound To Search: \n\rTHX Dolby Etc." "SOUND RECORDING SEARCH"

each SEARCH   TEXT
row  director "The search for \"KARINA \" was not found. "
row  star     "The search for \"karina \" was not found."
row  producer "The search for \"KARINA \" was not found. "
row  cinema   "The search for \"KARINA \" was not found. "
row  writer   "The search for \"KARINA \" was not found. "
row  music    "The search for \"KARINA \" was not found. "
row  art      "The search for \"KARINA \" was not found. "
row  dance    "The search for \"KARINA \" was not found. "
row  costume  "The search for \"KARINA \" was not found. "
row  awards   "The search for \"KARINA \" was not found. "
row  mpaa     "The search for \"PG \" was not found. "
row  sound    "The search for \"KARINA \" was not found. "

film 1 Title="Film 1" {FIELD}="{FILM1}"
film 2 Title="Film 2" {FIELD}="  {ANSWER}"
start
click {MENU}
input "{TITLE}" "{PROMPT}" "{ANSWER} "
beep
box warning "{BOXTITLE}" "{TEXT}" OK
click {MENU}
input "{TITLE}" "{PROMPT}" "{ANSWER}"
see state CurrentRecNo 1
