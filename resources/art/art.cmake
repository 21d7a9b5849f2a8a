# The picture generator: a library (also tested) and a host tool run at build time, see
# resources/bundle.cmake.
set(LARKWELLS_ART_SOURCE_DIR ${CMAKE_CURRENT_LIST_DIR})
add_library(larkwells_artlib STATIC
    ${LARKWELLS_ART_SOURCE_DIR}/Art.h ${LARKWELLS_ART_SOURCE_DIR}/Art.cpp
    ${LARKWELLS_ART_SOURCE_DIR}/Papers.cpp
    ${LARKWELLS_ART_SOURCE_DIR}/Bands.cpp
    ${LARKWELLS_ART_SOURCE_DIR}/Cover.cpp
    ${LARKWELLS_ART_SOURCE_DIR}/Sheet.cpp
)
target_include_directories(larkwells_artlib PUBLIC ${LARKWELLS_ART_SOURCE_DIR})
target_link_libraries(larkwells_artlib PUBLIC Qt6::Gui Qt6::Svg)
# Drawing millions of pixels: optimised even in Debug builds, or every fresh build waits on it.
target_compile_options(larkwells_artlib PRIVATE -O2)
set_target_properties(larkwells_artlib PROPERTIES AUTOMOC OFF)

add_executable(larkwells_art ${LARKWELLS_ART_SOURCE_DIR}/main.cpp)
target_link_libraries(larkwells_art PRIVATE larkwells_artlib)
set_target_properties(larkwells_art PROPERTIES AUTOMOC OFF RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR})
