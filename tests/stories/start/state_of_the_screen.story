# What is on the screen after a start, and what is not.
film 1 Title="Alien" Format="L" CLV1="CAV" CassNo="12" Letter="P" Genre="SF" Color1="B & W" Rating="R"
start
see frmPage1 "Reelora Prima Record  1/ 1      Title Non Sorted"
see lblHead.Visible yes
see lblsorted.Visible yes
see lblSorting.Visible no
see lblSave "    Your Work Has Been Saved!"
see lblSave.Visible no
see lblSelect.Visible no
see lblEnter.Visible no
see lblNumrec ""
see lblNumrec.Visible yes
see lblRetcode ""
see lblRetcode.Visible yes
see cmdSort.Visible yes
see cmdPrevious.Visible yes
see cmdPrevious.Enabled yes
see cmdNext.Visible yes
see cmdMatch.Visible yes
see cmdReset.Visible yes
see cmdNew.Visible yes
see cmdPrev20.Visible no
see cmdNext20.Visible no
see cmdPrevious1.Visible no
see txtCassNo.Enabled yes
see txtCLV1.Enabled yes
see txtCLV1 "CAV"
see txtColor1 "B & W "
see txtRating "R    "
see txtLetter "Pan & Scan"
see txtGenreList "Science Fiction"
see Text1(0).Visible no
see Text2(19).Visible no
see Text3(7).Visible no
see List1.Visible no
see List2.Visible no
see List3.Visible no
see List4.Visible no
see List5.Visible no
see List6.Visible no
see txtProducer.Visible no
see lblProducer.Visible no
see txtRatings.Visible no
see lblRates.Visible no
see lblDirector.Visible yes
see lblColor1.Visible yes
see optNotesoff.Value yes
see optnoteson.Value no
see optnoteson.Visible yes
see optnoteson.Enabled yes
see state ViewState 1
see state ScanRecNo 0
see state KeyRecord ""
see state PromptText ""
see state SortStarted 0
see frmPage1.HelpContext 220
