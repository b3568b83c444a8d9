# The floors of the house, lowest first, and the floors that each one may use. tests/floors.cmake reads this table too.

set(floors runtime forms store sort exchange screen opening filecopy help app launcher companion)

# A floor is one folder of its own name, but for this one.
set(folders_screen screen browse find reports prefs)

# What a floor may use: these floors, and what they may use themselves.
set(below_store     runtime)
set(below_sort      runtime)
set(below_exchange  store)
set(below_screen    store sort forms)
set(below_opening   screen)
set(below_filecopy  screen)
set(below_app       opening filecopy help)
set(below_launcher  store)
set(below_companion exchange sort launcher)

# floor_folders(FLOOR RESULT): the folders of a floor.
function(floor_folders floor result)
  if(DEFINED folders_${floor})
    set(${result} ${folders_${floor}} PARENT_SCOPE)
  else()
    set(${result} ${floor} PARENT_SCOPE)
  endif()
endfunction()
