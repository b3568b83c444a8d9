# Message Tag Colors reaches the letters of every label of its list; the note of a save keeps its own.
start
click mnuMessColor
colour 12632256
see lblEnter.ForeColor 12632256
see lblPage.ForeColor 12632256
see lblsorted.ForeColor 12632256
see lblTitle.ForeColor 12632256
see lblDirector.ForeColor 12632256
see lblStar1.ForeColor 12632256
see lblStar2.ForeColor 12632256
see lblStar3.ForeColor 12632256
see lblStar4.ForeColor 12632256
see lblStar5.ForeColor 12632256
see lblStar6.ForeColor 12632256
see lblLabel.ForeColor 12632256
see lblSelect.ForeColor 12632256
see lblFormat.ForeColor 12632256
see lblNumReel.ForeColor 12632256
see lblGenre.ForeColor 12632256
see lblGenreList1.ForeColor 12632256
see lblTime.ForeColor 12632256
see lblYear.ForeColor 12632256
see lblCassNo.ForeColor 12632256
see lblLetter.ForeColor 12632256
see lblCLV.ForeColor 12632256
see lblColor1.ForeColor 12632256
see lblRetcode.ForeColor 12632256
see lblNumrec.ForeColor 12632256
see optNotesoff.ForeColor 12632256
see optnoteson.ForeColor 12632256
see lblHead.ForeColor 12632256
see lblProducer.ForeColor 12632256
see lblMusic.ForeColor 12632256
see lblAward.ForeColor 12632256
see lblCinematographer.ForeColor 12632256
see lblCost.ForeColor 12632256
see lblCostume.ForeColor 12632256
see lblDance.ForeColor 12632256
see lblMPAA.ForeColor 12632256
see lblNotes1.ForeColor 12632256
see lblPackage.ForeColor 12632256
see lblPurchase.ForeColor 12632256
see lblRates.ForeColor 12632256
see lblSetDirection.ForeColor 12632256
see lblSorting.ForeColor 12632256
see lblSound.ForeColor 12632256
see lblWritten.ForeColor 12632256

see lblSave.ForeColor 65535
see lblTitle.BackColor 16711680
see file tagForColor "12632256\r\n"
