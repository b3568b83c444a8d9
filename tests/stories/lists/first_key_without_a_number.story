# A list whose first key has no number stops under the heading that it opened with, before the first film.
each LIST  KEYS     MENU      HEADING
row  dvd   DVDpra   mnualldvd "    Viewing All DVD Titles"
row  laser Laserpra mnualllas "    Viewing All Titles"
row  vhs   VHSpra   mnuAllVHS "    Viewing All Titles"

film 1 Title="Alien"
film 2 Title="Brazil"
key {KEYS}.Dat "Nobody" 0
count {KEYS} 1
start
click cmdNext
click {MENU}
see lblHead "{HEADING}"
see focus txtTitle
see state CurrentRecNo 1
see state RecordFound 0
see Text1(0) ""
