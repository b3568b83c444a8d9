# The quick start: its texts, its colours and what the Tab key reaches.
file Fo1 "YES\r\n"
start opener
click cmdStart
see frmQuickStart "Reelora Ver 4.0 Quick Start"
see Image1.Visible yes
see Image2.Visible yes
see frmQuickStart.BackColor 4857360
see lblQuick1 "Quick Start "
see lblQuick1.ForeColor 5104127
see lblQuick1.FontSize 20
see lblStep1 "Click \"New\", or press Alt W. An empty page 1 opens."
see lblStep1.ForeColor 15788260
see lblStep1.FontSize 10
see lblStep2 "Type the title and press Tab; go on like this through director, stars and label. Leave empty what you "
+ "do not know."
see lblStep2.ForeColor 15788260
see lblStep2.FontSize 10
see lblStep3 "Where a list opens, move with the arrow keys and press Enter, or click your choice: format, genre, "
+ "aspect, color."
see lblStep3.ForeColor 15788260
see lblStep3.FontSize 10
see lblStep4 "After color, page 2 opens by itself: producer, camera, writers, music, awards, price."
see lblStep4.ForeColor 15788260
see lblStep4.FontSize 10
see lblStep5 "Press Tab in the last box, Your Rating: your film is saved, and the collection is sorted."
see lblStep5.ForeColor 15788260
see lblStep5.FontSize 10
see lblStep6 "Choose \"View Files\", \"Alpha Titles\", and there it is. Press F1 anywhere for help."
see lblStep6.ForeColor 15788260
see lblStep6.FontSize 10
see lblQuick1.BackColor 4857360
see lblStep1.BackColor 4857360
see Check1 "Check here not to see this screen anymore."
see Check1.Value no
see Check1.ForeColor 5104127
see Check1.BackColor 4857360
see Check1.FontSize 10
see cmdContinue "continue"
see cmdContinue.ForeColor 0
see cmdContinue.BackColor 12632256
see cmdContinue.FontSize 11
see frmQuickStart.HelpContext 0
see focus cmdContinue
key Tab
see focus Check1
key Space
see Check1.Value yes
see file Fo1 "NO\r\n"
key Tab
see focus cmdContinue
see frmQuickStart.HelpContext 0
