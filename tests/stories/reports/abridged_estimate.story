# 54 keys: five characters of the figure, and the plural.
films 1 54 Title="Film ##" Format="D"
sorted
clock 2026-11-21 09:05:07
start
click mnuDVD
box question "Reelora Prima Print Program" "Do you want to print DVD disc library?  This list only prints Title, "
+ "Date, Genre and Format. It will take 1.018 pages to print." No
see state ListKeyCount 54
