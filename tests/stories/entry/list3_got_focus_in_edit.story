# In Edit the format list brings the reminder to save.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdEdit
see lblSorting "\r\n\r\n          Save Work When Finished!"
click txtFormat
see focus List3
see lblSorting "Save Work When Finished!"
see lblSorting.Visible yes
