# The full list of one film: the question ends in the figure 1 with nothing after it, the closing box has its capital
# letter, and Reset follows.
film 1 Title="Bridge on the River Kwai, The" Director="David Lean" Star1="William Holden" Star2="Alec Guinness"
+ Star3="Jack Hawkins" Star4="Sessue Hayakawa" Star5="James Donald" Star6="Geoffrey Horne" Label="Columbia" Format="D"
+ NumReel="2" Genre="DR" Time="161" Year="1957" Letter="W" Color1="Color" Rating="PG" Sound="Dolby Surround"
+ Awards="Seven Academy Awards, Best Picture among them"
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
see page 1 lines 14
see page 1 line 2 "   Reelora Prima All Titles Full List  11-21-2026  09:05:07"
see page 1 line 4 "  ____________________________________________________________________________"
see page 1 line 5 "  Bridge on the River Kwai, The  David Lean (Dir.)                     REC #1"
see page 1 line 6 "  William Holden                 Alec Guinness                 161 mins.1957"
see page 1 line 7 "  Jack Hawkins                   Sessue Hayakawa               Color Wide Screen"
see page 1 line 8 "  James Donald                   Geoffrey Horne                Drama"
see page 1 line 9 "  Label:Columbia        DVD 2Disc(s)      MPAA :PG    DVD Disc       SNDDolby Surround"
see page 1 line 10 "  Notes/Awards: Seven Academy Awards, Best Picture among them               :"
see page 1 line 12 "  TOTAL FILM(S) IN LIBRARY   1"
see page 1 line 14 "                                     Page  1"
see font "Courier New" 12
see page 1 look 5 "bold"
see page 1 look 9 "bold"
see page 1 look 10 "bold underlined"
see page 1 look 12 "bold"
see state PrintPending 0
see state RowCursor 1
see state KeyFilePos 0
see state ViewKind ""
see lblHead "To write a new record click \"New\" button or ALT \"W\""
see frmPage1 "Reelora Prima Record  1/ 1      Title Non Sorted"
see txtAwards "Seven Academy Awards, Best Picture among them"
