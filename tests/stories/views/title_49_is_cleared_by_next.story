# Title view: Next behind a title that begins with 49 clears EditMode before it reads on, so that the end asks nothing.
film 1 Title="49th Parallel" Format="D"
sorted
start
click mnuByTitle
see state EditMode 1
click cmdNext
beep
box warning "ALPHA TITLE SEARCH" "End of file!" OK
see state EditMode 0
