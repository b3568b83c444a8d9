# No leaves the page number set, the headline up and the kind of view.
each REPORT         FORMAT MENU     TEXT
row  abridged-vhs   V      mnuVHS   "Do you want to print VHS library?  This list"
row  abridged-dvd   D      mnuDVD   "Do you want to print DVD disc library?  This list"
row  abridged-all   L      mnuShort "Are you sure you want to Print Abridged List?,  This List"
row  abridged-laser L      mnuLaser "Do you want to print laser disc library?  This list"

each REPORT         HEADING                                   KIND
row  abridged-vhs   "All VHS Titles Abridged Print Program"   VHS
row  abridged-dvd   "All DVD Titles Abridged Print Program"   DVDpra
row  abridged-all   "All Titles Abridged Print Program"       Title
row  abridged-laser "All Laser Titles Abridged Print Program" Laser

film 1 Title="Metropolis" Format="{FORMAT}"
sorted
clock 2026-11-21 09:05:07
start
click {MENU}
box question "Reelora Prima Print Program" "{TEXT} only prints Title, Date, Genre and Format. It will take 1 page to "
+ "print." No
see lblHead "{HEADING}"
see state PrintPending 1
see state FirstRecordAdjust 1
see state ViewKind "{KIND}"
