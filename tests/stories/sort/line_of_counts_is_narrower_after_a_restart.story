# The line of counts has wider gaps after a sort than after a start; both stay so.
film 1 Title="Solaris" Format="D"
film 2 Title="alien" Format="L"
film 3 Title="Ran" Format="V"
film 4 Title="Brazil" Format="V"
film 5 Title="Zelig" Format="D"
start
click mnuSort
beep
beep
beep
beep
see lblsorted "No. Titles  5  -    No. DVDS  2  -    No.Laser discs  1  -    No.VHS  2"
see lblsorted.Visible yes
restart
see lblsorted "No. Titles  5 -    No. DVDS  2 -    No.Laser discs  1 -    No.VHS 2"
