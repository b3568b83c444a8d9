# The question stays behind in the prompt's own word.
start
click mnuAutoSort
box question "Reelora Prima" "To activate \" Auto Sort\" click (Y)  or to remove\" Auto Sort\" click (N) " Yes
see state PromptText "To activate \" Auto Sort\" click (Y)  or to remove\" Auto Sort\" click (N) "
