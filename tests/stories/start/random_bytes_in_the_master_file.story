# Bytes that no program wrote are shown as they stand, and stay.
file Recpra.Dat "\x00\x01\xff\xfe\x80\x81\r\n\x00abc"
start
see state RecordCount 1
see file Recpra.Dat "\x00\x01\xff\xfe\x80\x81\r\n\x00abc"
