# The whole menu with its captions.
film 1 Title="Alien" Format="V"
start
see mnuFile1 "&File"
see mnuFile1.Enabled yes
see mnuCopy "&Copy Files"
see mnuCopy.Enabled yes
see mnuSave "&Save"
see mnuSave.Enabled yes
see mnuPrint2 "Set&up Printer"
see mnuPrint2.Enabled yes
see mnuLibrary "&Print Library"
see mnuLibrary.Enabled yes
see mnuAll "Print All Titles (Full List)"
see mnuAll.Enabled yes
see mnuShort "Print All Titles (Abridged)"
see mnuShort.Enabled yes
see mnuLaser "Print All Laser Titles (Abridged)"
see mnuLaser.Enabled yes
see mnuVHS "Print All VHS Titles (Abridged)"
see mnuVHS.Enabled yes
see mnuDVD "Print All DVD Titles (Abridged)"
see mnuDVD.Enabled yes
see mnuDirector "Print By Director"
see mnuDirector.Enabled yes
see mnuStars "Print By Stars"
see mnuStars.Enabled yes
see mnuGenre "Print By Genre"
see mnuGenre.Enabled yes
see mnuExit "E&xit"
see mnuExit.Enabled yes
see mnuFind "F&ind"
see mnuFind.Enabled yes
see mnulast1 "Find By Last Record"
see mnulast1.Enabled yes
see mnuLast "Find Last Record"
see mnuLast.Enabled yes
see mnuLastEntry "Find Last Entry"
see mnuLastEntry.Enabled yes
see mnuFile "Find By File No."
see mnuFile.Enabled yes
see mnuFindTitle "Find By Title"
see mnuFindTitle.Enabled yes
see mnuFindDirector "Find By Director"
see mnuFindDirector.Enabled yes
see mnuFindStar "Find By Star"
see mnuFindStar.Enabled yes
see mnuProducer "Find By Producer"
see mnuProducer.Enabled yes
see mnuCinema "Find By Cinematographer"
see mnuCinema.Enabled yes
see mnuWriter "Find By Writer"
see mnuWriter.Enabled yes
see mnuMusic "Find By Music Comp."
see mnuMusic.Enabled yes
see mnuArt "Find Art Director"
see mnuArt.Enabled yes
see mnuDance "Find By Choreographer"
see mnuDance.Enabled yes
see mnuCostume "Find Costumer"
see mnuCostume.Enabled yes
see mnuAwards "Find By Awards"
see mnuAwards.Enabled yes
see mnuMPAA "Find By MPAA Rating"
see mnuMPAA.Enabled yes
see mnuSound "Find By Sound"
see mnuSound.Enabled yes
see mnuFindGenre "Find By Genre"
see mnuFindGenre.Enabled yes
see mnuViewFiles "&View Files"
see mnuViewFiles.Enabled yes
see mnuByTitle "Alpha Titles"
see mnuByTitle.Enabled yes
see mnuByDVD "Alpha DVD Titles"
see mnuByDVD.Enabled yes
see mnuByLaser "Alpha Laser Titles"
see mnuByLaser.Enabled yes
see mnuByVHS "Alpha VHS Titles"
see mnuByVHS.Enabled yes
see mnuViewAllFiles "View &All Files"
see mnuViewAllFiles.Enabled yes
see mnuAllTitles "View All Titles"
see mnuAllTitles.Enabled yes
see mnualldvd "View All DVDs"
see mnualldvd.Enabled yes
see mnualllas "View All Lasers"
see mnualllas.Enabled yes
see mnuAllVHS "View All VHSs"
see mnuAllVHS.Enabled yes
see mnuFindAllGenre "View All Genre"
see mnuFindAllGenre.Enabled yes
see mnuSort "S&ort"
see mnuSort.Enabled yes
see mnuPreference "Preferen&ce"
see mnuPreference.Enabled yes
see mnuProFunct "Program Functions"
see mnuProFunct.Enabled yes
see mnuAutoSave "Auto Save"
see mnuAutoSave.Enabled yes
see mnuAutoSort "Auto Sort"
see mnuAutoSort.Enabled yes
see mnuColors "Pro&gram Colors"
see mnuColors.Enabled yes
see mnuBGColors "Background Colors"
see mnuBGColors.Enabled yes
see mnuTxtBoxColor "Text Box Colors"
see mnuTxtBoxColor.Enabled yes
see mnuTxtColor "Text Colors "
see mnuTxtColor.Enabled yes
see mnuMessColor "Message Tag Colors"
see mnuMessColor.Enabled yes
see mnudefault "Default Colors"
see mnudefault.Enabled yes
see mnuHelp "&Help"
see mnuHelp.Enabled yes
