# Only a title that compares greater than "000000" is among all titles; what begins with a quote or a parenthesis
# is not, but its format's file has it.
film 1 Title="'Round Midnight" Format="D"
film 2 Title="(500) Days" Format="D"
film 3 Title="\"Quoted\"" Format="L"
film 4 Title="000000" Format="V"
film 5 Title="000000 and more" Format="V"
film 6 Title="10" Format="V"
film 7 Title="00000" Format="D"
start
click mnuSort
beep
beep
beep
beep
see file Titlepra.Dat "000000 and more                         0000005\r\n10                                      "
+ "0000006\r\n"
see file DVDpra.Dat "'Round Midnight                         0000001\r\n(500) Days                              "
+ "0000002\r\n00000                                   0000007\r\n"
see key Laserpra.Dat 1 "\"Quoted\"" 3
see file VHSpra " 3\r\n"
see key VHSpra.Dat 1 "000000" 4
