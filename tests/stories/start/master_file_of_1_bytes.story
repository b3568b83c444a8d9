# A master file of 1 bytes counts 1 record; what is there is shown, and nothing is rewritten.
file Recpra.Dat "A"
start
see state RecordCount 1
see txtTitle "A"
see txtFormat ""
see frmPage1 "Reelora Prima Record  1/ 1      Title Non Sorted"
see file Recpra.Dat "A"
