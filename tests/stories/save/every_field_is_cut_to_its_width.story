# Texts that are too long are cut to the widths of their fields, and nothing runs over.
film 1 Format="V"
film 2 Title="Brazil"
start
click cmdEdit
click txtTitle
clear
type "itleabcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789+-*/=!"
click txtDirector
clear
type "ctorabcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789+-*/=!"
click txtStar1(0)
clear
type "tar1abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789+-*/=!"
click txtStar2(1)
clear
type "tar2abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789+-*/=!"
click txtStar3(1)
clear
type "tar3abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789+-*/=!"
click txtStar4(1)
clear
type "tar4abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789+-*/=!"
click txtStar5(1)
clear
type "tar5abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789+-*/=!"
click txtStar6(1)
clear
type "tar6abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789+-*/=!"
click txtLabel
clear
type "abelabcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789+-*/=!"
click txtNumReel
clear
type "ReelabcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789+-*/=!"
click txtTime
clear
type "TimeabcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789+-*/=!"
click txtYear
clear
type "YearabcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789+-*/=!"
click txtCassNo
clear
type "ssNoabcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789+-*/=!"
click optnoteson
click txtProducer
clear
type "ucerabcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789+-*/=!"
click txtCinematographer
clear
type "pherabcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789+-*/=!"
click txtWritten
clear
type "ttenabcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789+-*/=!"
click txtMusic
clear
type "usicabcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789+-*/=!"
click txtChoreography
clear
type "aphyabcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789+-*/=!"
click txtSetDirection
clear
type "tionabcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789+-*/=!"
click txtCostume
clear
type "tumeabcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789+-*/=!"
click txtSound
clear
type "oundabcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789+-*/=!"
click txtPackage
clear
type "kageabcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789+-*/=!"
click txtAwards
clear
type "ardsabcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789+-*/=!"
click txtPurchase
clear
type "haseabcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789+-*/=!"
click txtCost
clear
type "CostabcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789+-*/=!"
click cmdSave
see file Recpra.Dat "itleabcdefghijklmnopqrstuvwxyzABCDEFGHIJctorabcdefghijklmnopqrstuvwxyztar1abcdefghijklmnopqrstuv"
+ "wxyztar2abcdefghijklmnopqrstuvwxyztar3abcdefghijklmnopqrstuvwxyztar4abcdefghijklmnopqrstuvwxyztar5abcdefghijklmnop"
+ "qrstuvwxyztar6abcdefghijklmnopqrstuvwxyzabelabcdefghijkVR  TimYearssNoa          "
+ "ucerabcdefghijklmnopqrstuvwxyzpherabcdefghijklmnopqrstuvwxyzttenabcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTusic"
+ "abcdefghijklmnopqrstuvwxyzaphyabcdefghijklmnopqrstuvwxyztionabcdefghijklmnopqrstuvwxyztumeabcdefghijklmnopqrstuvwx"
+ "yzoundabcdefghijkardsabcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123     "
+ "kageabcdefghijkhaseabcdCostabcd               \r\nBrazil                                                          "
+ "                                                                                                                  "
+ "                                                                                                                  "
+ "                                                                                                                  "
+ "                                                                                                                  "
+ "                                                                                                                  "
+ "             \r\n"
