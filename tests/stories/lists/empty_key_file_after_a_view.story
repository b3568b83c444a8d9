# A list of an empty key file, chosen after a view, ends at its first key.
each LIST   FORMAT KEYS     COUNT    MENU       MENU2
row  titles V      VHSpra   Titlepra mnuByVHS   mnuAllTitles
row  dvd    V      VHSpra   DVDpra   mnuByVHS   mnualldvd
row  laser  V      VHSpra   Laserpra mnuByVHS   mnualllas
row  vhs    L      Laserpra VHSpra   mnuByLaser mnuAllVHS

film 1 Title="Film 01" Genre="DR" Format="{FORMAT}"
key {KEYS}.Dat "Film 01" 1
count {KEYS} 1
count {COUNT} 1
file {COUNT}.Dat ""
start
click {MENU}
click {MENU2}
beep
box none "" "End of file!" OK
see Text1(0) ""
see state ListState 0
see state SearchState 0
see state ListShown 0
see state ListShownAlso 0
see state PageMode 0
see state KeyFilePos 0
see state ViewKind ""
see state CurrentRecNo 1
see Text1(0).Visible no
see Text2(19).Visible no
see Text3(10).Visible no
see cmdNext20.Visible no
see cmdNext.Visible yes
see cmdPrevious.Visible yes
see cmdNew.Visible yes
see optNotesoff.Visible yes
see optnoteson.Visible yes
