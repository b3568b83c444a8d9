# With the features off Start itself reads Fo1, which must be there.
remove Fo1
start opener
click cmdStart
stop "File not found"
