# The copy window: its colours and sizes, and what the Tab key reaches.
drive a floppy
film 1 Title="Solaris"
start
click mnuCopy
see lblCopy.ForeColor 65535
see lblCopy.BackColor 16711680
see lblCopy.FontSize 16
see lblCopy2.ForeColor 65535
see lblCopy2.BackColor 16711680
see lblCopy2.FontSize 10
see lblCopy6.ForeColor 65535
see lblCopy6.BackColor 16711680
see lblCopy6.FontSize 10
see lblCopy3.ForeColor 65535
see lblCopy3.BackColor 16711680
see lblCopy3.FontSize 10
see lblCopy4.ForeColor 65535
see lblCopy4.BackColor 16711680
see lblCopy4.FontSize 10
see lblCopy5.ForeColor 65535
see lblCopy5.BackColor 16711680
see lblCopy5.FontSize 10
see lblCopy7.ForeColor 16777215
see lblCopy7.BackColor 16711680
see lblCopy7.FontSize 14
see File1.ForeColor 0
see File1.BackColor 16777215
see File1.FontSize 10
see File2.ForeColor 0
see File2.BackColor 16777215
see File2.FontSize 10
see Drive1.ForeColor 0
see Drive1.BackColor 16777215
see Drive1.FontSize 10
see Dir1.ForeColor 0
see Dir1.BackColor 16777215
see Dir1.FontSize 10
see Dir2.ForeColor 0
see Dir2.BackColor 16777215
see Dir2.FontSize 10
see Dir1.Items
see Dir2.Items
see File2.Items
see focus File1
see frmCopy.HelpContext 603
pick File1 "Recpra.Dat"
key Tab
see focus Drive1
see frmCopy.HelpContext 603
key Tab
see focus File1
key Shift+Tab
see focus Drive1
key Shift+Tab
see focus File1
