# A film in each format: the words of the fifth line differ in small things.
film 1 Title="Bridge on the River Kwai, The" Director="David Lean" Star1="William Holden" Star2="Alec Guinness"
+ Star3="Jack Hawkins" Star4="Sessue Hayakawa" Star5="James Donald" Star6="Geoffrey Horne" Label="Columbia" Format="D"
+ NumReel="2" Genre="DR" Time="161" Year="1957" Letter="W" Color1="Color" Rating="PG" Sound="Dolby Surround"
+ Awards="Seven Academy Awards, Best Picture among them"
film 2 Title="Third Man, The" Director="Carol Reed" Star1="Joseph Cotten" Star2="Alida Valli" Star3="Orson Welles"
+ Star4="Trevor Howard" Star5="Bernard Lee" Star6="Ernst Deutsch" Label="Criterion" Format="L" NumReel="1" Genre="MS"
+ Time="104" Year="1949" Letter="T" CLV1="CAV" Color1="B & W" Rating="NR" Sound="Mono"
+ Awards="Academy Award for the cinematography"
film 3 Title="Metropolis" Director="Fritz Lang" Star1="Brigitte Helm" Star2="Alfred Abel" Format="V" NumReel="1"
+ Genre="SF" Time="153" Year="1927" CassNo="00012" Label="Kino" Letter="T" Color1="B & W" Rating="NR" Sound="Silent"
sorted
clock 2026-11-21 09:05:07
start
click mnuAll
box question "Reelora Prima Print Program" "If you have added any new records be sure to sort files before "
+ "printing!\n\nAre you sure you want to print all titles? The full list will take 1" Yes
printed 1
beep
box warning "Reelora Prima Print Program" "End of file!   please wait. There is 1 Page to print." OK
see pages 1
see page 1 lines 26
see page 1 line 2 "   Reelora Prima All Titles Full List  11-21-2026  09:05:07"
see page 1 line 4 "  ____________________________________________________________________________"
see page 1 line 5 "  Bridge on the River Kwai, The  David Lean (Dir.)                     REC #1"
see page 1 line 6 "  William Holden                 Alec Guinness                 161 mins.1957"
see page 1 line 7 "  Jack Hawkins                   Sessue Hayakawa               Color Wide Screen"
see page 1 line 8 "  James Donald                   Geoffrey Horne                Drama"
see page 1 line 9 "  Label:Columbia        DVD 2Disc(s)      MPAA :PG    DVD Disc       SNDDolby Surround"
see page 1 line 10 "  Notes/Awards: Seven Academy Awards, Best Picture among them               :"
see page 1 line 11 "  Metropolis                     Fritz Lang (Dir.)                     REC #3"
see page 1 line 12 "  Brigitte Helm                  Alfred Abel                   153 mins.1927"
see page 1 line 13 "                                                               B & W TV 1.33:1"
see page 1 line 14 "                                                               Science Fiction"
see page 1 line 15 "  Label:Kino            VHS 1 Cass(s).    MPAA :NR    Cass# 00012    SND: Silent"
see page 1 line 16 "  Notes/Awards:                                                             :"
see page 1 line 17 "  Third Man, The                 Carol Reed (Dir.)                     REC #2"
see page 1 line 18 "  Joseph Cotten                  Alida Valli                   104 mins.1949"
see page 1 line 19 "  Orson Welles                   Trevor Howard                 B & W TV 1.33:1"
see page 1 line 20 "  Bernard Lee                    Ernst Deutsch                 Mystery Suspense"
see page 1 line 21 "  Label:Criterion       Laser 1 Disc(s)   MPAA :NR    CAV            SND: Mono"
see page 1 line 22 "  Notes/Awards: Academy Award for the cinematography                        :"
see page 1 line 24 "  TOTAL FILM(S) IN LIBRARY   3"
see page 1 line 26 "                                     Page  1"
