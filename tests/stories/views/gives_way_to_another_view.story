# A view chosen in the middle of another begins at its own first key.
each VIEWS                    FORMAT FORMAT2 MENU       KIND  SHOWN
row  dvd_gives_way_to_laser   D      L       mnuByDVD   Laser Cabaret
row  dvd_gives_way_to_title   D      D       mnuByDVD   Title Alien
row  dvd_gives_way_to_vhs     D      V       mnuByDVD   VHS   Cabaret
row  laser_gives_way_to_dvd   L      D       mnuByLaser DVD   Cabaret
row  laser_gives_way_to_title L      D       mnuByLaser Title Alien
row  laser_gives_way_to_vhs   L      V       mnuByLaser VHS   Cabaret
row  title_gives_way_to_dvd   D      D       mnuByTitle DVD   Alien
row  title_gives_way_to_laser D      L       mnuByTitle Laser Cabaret
row  title_gives_way_to_vhs   D      V       mnuByTitle VHS   Cabaret
row  vhs_gives_way_to_dvd     V      D       mnuByVHS   DVD   Cabaret
row  vhs_gives_way_to_laser   V      L       mnuByVHS   Laser Cabaret
row  vhs_gives_way_to_title   V      D       mnuByVHS   Title Alien

film 1 Title="Alien" Format="{FORMAT}"
film 2 Title="Brazil" Format="{FORMAT}"
film 3 Title="Cabaret" Format="{FORMAT2}"
film 4 Title="Dune" Format="{FORMAT2}"
sorted
start
click {MENU}
click cmdNext
see state KeyFilePos 2
click mnuBy{KIND}
see txtTitle "{SHOWN}"
see state ViewKind "{KIND}"
see state KeyFilePos 1
