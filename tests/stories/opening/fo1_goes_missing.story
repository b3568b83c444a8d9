# Continue reads Fo1 again.
remove Fo
file Fo1 "NO\r\n"
start opener
click cmdStart
remove Fo1
click Command1
stop "File not found"
