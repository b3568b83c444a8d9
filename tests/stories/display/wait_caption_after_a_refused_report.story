# No to a report's question leaves the wait caption to come with the next film shown.
film 1 Title="Alien"
film 2 Title="Brazil"
sorted
start
click mnuAll
box question ANY ANY No
click cmdNext
see lblHead "Please wait print spooler is loading files."
