# A number padded with blanks reads like one padded with zeros; 2.5 and 3.5 round to the even neighbour.
each VIEW  FORMAT FILE     MENU
row  title D      Titlepra mnuByTitle
row  dvd   D      DVDpra   mnuByDVD
row  laser L      Laserpra mnuByLaser
row  vhs   V      VHSpra   mnuByVHS

films 1 9 Title="Film #" Format="{FORMAT}"
file {FILE}.Dat "A                                             7\r\nB                                       "
+ "0000007\r\nC                                       2.5    \r\nD                                           3.5\r\n"
+ "E                                       6x     \r\n"
count {FILE} 5
start
click {MENU}
see txtTitle "Film 7"
click cmdNext
see txtTitle "Film 7"
click cmdNext
see txtTitle "Film 2"
click cmdNext
see txtTitle "Film 4"
click cmdNext
see txtTitle "Film 6"
