# With both settings on the last Tab of a whole film saves and sorts it.
file AutoSave "YES\r\n"
file AutoSort "YES\r\n"
start
key Alt+W
see focus txtTitle
type "An American in Paris"
key Tab
see focus txtDirector
type "Vincente Minnelli"
key Tab
see focus txtStar1(0)
type "Gene Kelly"
key Tab
see focus txtStar2(1)
type "Leslie Caron"
key Tab
see focus txtStar3(1)
type "Orson Welles"
key Tab
see focus txtStar4(1)
type "Trevor Howard"
key Tab
see focus txtStar5(1)
type "Bernard Lee"
key Tab
see focus txtStar6(1)
type "Paul Hörbiger"
key Tab
see focus txtLabel
type "Criterion"
key Tab
see focus List3
key Enter
see focus txtNumReel
type "1"
key Tab
see focus List1
key Enter
see txtGenre "AA"
see focus txtTime
type "113"
key Tab
see focus txtYear
type "1951"
key Tab
see focus List4
key Down
key Enter
see focus List6
key Enter
see focus txtProducer
see lblPage "PAGE 2"
type "Carol Reed"
key Tab
see focus txtCinematographer
type "Robert Krasker"
key Tab
see focus txtWritten
type "Graham Greene"
key Tab
see focus txtMusic
type "Anton Karas"
key Tab
see focus txtChoreography
type "none"
key Tab
see focus txtSetDirection
type "Vincent Korda"
key Tab
see focus txtCostume
type "Ivy Baker"
key Tab
see focus txtSound
type "Dolby AC-3"
key Tab
see focus List2
key Enter
see focus txtPackage
type "Slip case"
key Tab
see focus txtAwards
type "Academy Award: Cinematography"
key Tab
see focus txtPurchase
type "11-02-98"
key Tab
see focus txtCost
type "19.95"
key Tab
see focus txtRatings
type "Five stars"
key Tab
beep
beep
beep
beep
see focus cmdSave
see lblPage "PAGE 1"
see file Recpra.Dat "American in Paris, An                   Vincente Minnelli             Gene "
+ "Kelly                    Leslie Caron                  Orson Welles                  Trevor "
+ "Howard                 Bernard Lee                   Paul Hörbiger                 Criterion      D1AA1131951     "
+ "P   Color Carol Reed                    Robert Krasker                Graham "
+ "Greene                                     Anton Karas                   none                          Vincent "
+ "Korda                 Ivy Baker                     Dolby AC-3     Academy Award: "
+ "Cinematography                               G    Slip case      11-02-9819.95   Five stars     \r\n"
see file Titlepra " 1\r\n"
see file DVDpra " 1\r\n"
see file Laserpra " 0\r\n"
see file VHSpra " 0\r\n"
see key Titlepra.Dat 1 "American in Paris, An" 1
see key DVDpra.Dat 1 "American in Paris, An" 1
see length VHSpra.Dat 0
see file Last " 1 \r\n"
