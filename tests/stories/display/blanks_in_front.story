# Blanks in front go when a field is trimmed, but not in the rating, which is only read.
film 1 Title="Alien" Color1=" Color" Rating=" PG" CLV1=" CA" NumReel="2" Genre=" S"
start
see txtColor1 "Color "
see txtRating " PG  "
see txtCLV1 "CA "
see txtGenre "S"
click cmdEdit
click cmdSave
see film 1 Color1 "Color"
see film 1 Rating " PG"
see film 1 CLV1 "CA"
see film 1 Genre "S"
