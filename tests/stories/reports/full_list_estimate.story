# The words after the figure are never cleared: what an earlier report left stays after a figure of less than 1.
films 1 4 Title="Film ##" Director="Director ##" Star1="Star ##" Format="V" NumReel="1" Genre="CO" Time="1##"
+ Year="19##" CassNo="###" Color1="Color" Letter="P" Rating="G" Label="Label ##" Sound="Stereo" Awards="Note ##"
sorted
clock 2026-11-21 09:05:07
start
click mnuShort
box question "Reelora Prima Print Program" "Are you sure you want to Print Abridged List?,  This List only prints "
+ "Title, Date, Genre and Format. It will take 1 page to print." No
click mnuAll
box question "Reelora Prima Print Program" "If you have added any new records be sure to sort files before "
+ "printing!\n\nAre you sure you want to print all titles? The full list will take 1 page to print." No
