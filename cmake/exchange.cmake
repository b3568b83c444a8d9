# What the floor exchange/ needs of Debian, each included by one source file, and the HTML page as a source file.

find_package(EXPAT REQUIRED)
find_library(REELORA_CSV csv REQUIRED)
find_library(REELORA_MINIZIP minizip REQUIRED)
find_path(REELORA_JSON nlohmann/json.hpp REQUIRED)
target_link_libraries(reelora_exchange PRIVATE EXPAT::EXPAT ${REELORA_CSV} ${REELORA_MINIZIP})

set(page_parts films.html style.css script.js)
foreach(part ${page_parts})
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/exchange/page/${part})
  file(READ ${PROJECT_SOURCE_DIR}/exchange/page/${part} page_${part})
endforeach()
configure_file(exchange/page.cpp.in ${PROJECT_BINARY_DIR}/exchange/page.cpp @ONLY)
target_sources(reelora_exchange PRIVATE ${PROJECT_BINARY_DIR}/exchange/page.cpp)
