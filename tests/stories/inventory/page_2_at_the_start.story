# The fields of page 2 and their tags when the window has come up.
film 1 Title="Alien" Format="V"
start
see txtProducer.Visible no
see txtProducer.Enabled yes
see txtProducer.Alignment centre
see lblProducer "Producer"
see lblProducer.Visible no
see lblProducer.Enabled yes
see txtCinematographer.Visible no
see txtCinematographer.Enabled yes
see txtCinematographer.Alignment centre
see lblCinematographer "Cinematographer"
see lblCinematographer.Visible no
see lblCinematographer.Enabled yes
see txtWritten.Visible no
see txtWritten.Enabled yes
see txtWritten.Alignment centre
see lblWritten "Screen Play By -  Adapted for the screen by  - Writers - Film Editor (optional)"
see lblWritten.Visible no
see lblWritten.Enabled yes
see txtMusic.Visible no
see txtMusic.Enabled yes
see txtMusic.Alignment centre
see lblMusic "Music - Director / Composer"
see lblMusic.Visible no
see lblMusic.Enabled yes
see txtChoreography.Visible no
see txtChoreography.Enabled yes
see txtChoreography.Alignment centre
see lblDance "Choreography"
see lblDance.Visible no
see lblDance.Enabled yes
see txtSetDirection.Visible no
see txtSetDirection.Enabled yes
see txtSetDirection.Alignment centre
see lblSetDirection "Art Director /Set Direction"
see lblSetDirection.Visible no
see lblSetDirection.Enabled yes
see txtCostume.Visible no
see txtCostume.Enabled yes
see txtCostume.Alignment centre
see lblCostume "Costume Designer"
see lblCostume.Visible no
see lblCostume.Enabled yes
see txtSound.Visible no
see txtSound.Enabled yes
see txtSound.Alignment centre
see lblSound "Sound Recording  \"THX\" , Dolby AC-3  etc.  "
see lblSound.Visible no
see lblSound.Enabled yes
see txtRating.Visible no
see txtRating.Enabled yes
see txtRating.Alignment centre
see lblMPAA "MPAA Rating"
see lblMPAA.Visible no
see lblMPAA.Enabled yes
see txtPackage.Visible no
see txtPackage.Enabled yes
see txtPackage.Alignment centre
see lblPackage "Packaging"
see lblPackage.Visible no
see lblPackage.Enabled yes
see txtAwards.Visible no
see txtAwards.Enabled yes
see txtAwards.Alignment centre
see lblAward "Nominations  / Awards or Notes"
see lblAward.Visible no
see lblAward.Enabled yes
see txtPurchase.Visible no
see txtPurchase.Enabled yes
see txtPurchase.Alignment centre
see lblPurchase "Purchase Date"
see lblPurchase.Visible no
see lblPurchase.Enabled yes
see txtCost.Visible no
see txtCost.Enabled yes
see txtCost.Alignment centre
see lblCost "Purchase Price"
see lblCost.Visible no
see lblCost.Enabled yes
see txtRatings.Visible no
see txtRatings.Enabled yes
see txtRatings.Alignment centre
see lblRates "Your Rating  (optional)"
see lblRates.Visible no
see lblRates.Enabled yes
