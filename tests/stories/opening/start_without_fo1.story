# Without Fo1 the features window cannot be loaded.
remove Fo
remove Fo1
start opener
click cmdStart
stop "File not found"
