# Background Colors reaches the window and the ground of every label of its list, and nothing else.
start
click mnuBGColors
colour 4227327
see frmPage1.BackColor 4227327
see lblPage.BackColor 4227327
see lblsorted.BackColor 4227327
see lblTitle.BackColor 4227327
see lblDirector.BackColor 4227327
see lblStar1.BackColor 4227327
see lblStar2.BackColor 4227327
see lblStar3.BackColor 4227327
see lblStar4.BackColor 4227327
see lblStar5.BackColor 4227327
see lblStar6.BackColor 4227327
see lblLabel.BackColor 4227327
see lblSelect.BackColor 4227327
see lblFormat.BackColor 4227327
see lblNumReel.BackColor 4227327
see lblGenre.BackColor 4227327
see lblGenreList1.BackColor 4227327
see lblTime.BackColor 4227327
see lblYear.BackColor 4227327
see lblCassNo.BackColor 4227327
see lblLetter.BackColor 4227327
see lblCLV.BackColor 4227327
see lblColor1.BackColor 4227327
see lblRetcode.BackColor 4227327
see lblNumrec.BackColor 4227327
see optNotesoff.BackColor 4227327
see optnoteson.BackColor 4227327
see lblHead.BackColor 4227327
see lblProducer.BackColor 4227327
see lblMusic.BackColor 4227327
see lblAward.BackColor 4227327
see lblCinematographer.BackColor 4227327
see lblCost.BackColor 4227327
see lblCostume.BackColor 4227327
see lblDance.BackColor 4227327
see lblMPAA.BackColor 4227327
see lblNotes1.BackColor 4227327
see lblPackage.BackColor 4227327
see lblPurchase.BackColor 4227327
see lblRates.BackColor 4227327
see lblSave.BackColor 4227327
see lblSetDirection.BackColor 4227327
see lblSorting.BackColor 4227327
see lblSound.BackColor 4227327
see lblWritten.BackColor 4227327

see lblEnter.BackColor 16711680
see txtTitle.BackColor 16777215
see lblTitle.ForeColor 65535
see file BGColor "4227327\r\n"
see file txtBGColor "16777215\r\n"
see file tagForColor "65535\r\n"
see file txtForColor "16711680\r\n"
