# With nothing set F1 opens the contents: in the windows that have no topics of their own.
start opener
key F1
help contents
