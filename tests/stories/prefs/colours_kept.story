# Colours that were chosen are there again after a restart; the purchase price shows its ground only when one is
# chosen.
start
click mnuBGColors
colour 4194304
click mnuTxtBoxColor
colour 12648447
see txtCost.BackColor 12648447
click mnuTxtColor
colour 64
click mnuMessColor
colour 49344
see lblSave.ForeColor 65535
restart
see frmPage1.BackColor 4194304
see lblTitle.BackColor 4194304
see txtTitle.BackColor 12648447
see txtCost.BackColor 16777215
see txtTitle.ForeColor 64
see lblTitle.ForeColor 49344
see lblSave.ForeColor 49344
