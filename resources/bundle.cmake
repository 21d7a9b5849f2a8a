# The application bundle: the shipped text files and pictures, flat under :/bundle/ as the
# bundle lookups expect (name.type).
set(LARKWELLS_BUNDLE_DIR ${CMAKE_CURRENT_LIST_DIR})
set(LARKWELLS_BUNDLE_FILES
    ${LARKWELLS_BUNDLE_DIR}/Book.txt
    ${LARKWELLS_BUNDLE_DIR}/SpecialDays.txt
    ${LARKWELLS_BUNDLE_DIR}/About.txt
    ${LARKWELLS_BUNDLE_DIR}/icon/larkwells.svg
)

# The pictures are drawn at build time by our generator: 35 reader papers (Page1 … Page35),
# 35 list bands (AM-36 … AM-70) and the cover.
include(${LARKWELLS_BUNDLE_DIR}/art/art.cmake)
set(LARKWELLS_PICTURES_DIR ${CMAKE_BINARY_DIR}/pictures)
set(LARKWELLS_PICTURES ${LARKWELLS_PICTURES_DIR}/Cover.svg)
foreach(i RANGE 1 35)
    list(APPEND LARKWELLS_PICTURES ${LARKWELLS_PICTURES_DIR}/Page${i}.jpg)
endforeach()
foreach(i RANGE 36 70)
    list(APPEND LARKWELLS_PICTURES ${LARKWELLS_PICTURES_DIR}/AM-${i}.svg)
endforeach()
add_custom_command(
    OUTPUT ${LARKWELLS_PICTURES}
    COMMAND larkwells_art pictures ${LARKWELLS_PICTURES_DIR}
    DEPENDS larkwells_art
    COMMENT "Drawing the wallpapers and the cover"
    VERBATIM)
add_custom_target(larkwells_pictures DEPENDS ${LARKWELLS_PICTURES})
list(APPEND LARKWELLS_BUNDLE_FILES ${LARKWELLS_PICTURES})

foreach(file IN LISTS LARKWELLS_BUNDLE_FILES)
    get_filename_component(alias ${file} NAME)
    set_source_files_properties(${file} PROPERTIES QT_RESOURCE_ALIAS ${alias})
endforeach()
# The icon is "Icon" in the bundle, for the window and the about screen.
set_source_files_properties(${LARKWELLS_BUNDLE_DIR}/icon/larkwells.svg PROPERTIES QT_RESOURCE_ALIAS Icon.svg)
qt_add_resources(larkwells_lib "bundle" PREFIX "/bundle" FILES ${LARKWELLS_BUNDLE_FILES})
