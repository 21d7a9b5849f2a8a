# The application bundle: the shipped text files and pictures, flat under :/bundle/ as the
# bundle lookups expect (name.type).
set(LARKWELLS_BUNDLE_DIR ${CMAKE_CURRENT_LIST_DIR})
set(LARKWELLS_BUNDLE_FILES
    ${LARKWELLS_BUNDLE_DIR}/Book.txt
)
foreach(file IN LISTS LARKWELLS_BUNDLE_FILES)
    get_filename_component(alias ${file} NAME)
    set_source_files_properties(${file} PROPERTIES QT_RESOURCE_ALIAS ${alias})
endforeach()
qt_add_resources(larkwells_lib "bundle" PREFIX "/bundle" FILES ${LARKWELLS_BUNDLE_FILES})
