# Makes a preference pane's bundle folder from a plug-in:
#   zarvil_pane_bundle(target NAME name IDENTIFIER id CLASS class [FOLDER folder] [INSTALL folder]
#                      [ICON file])
# The plug-in is built straight into FOLDER/NAME.prefPane/Contents, FOLDER being by default
# PreferencePanes in the build tree. With INSTALL the bundle is installed into that folder.
function(zarvil_pane_bundle target)
    cmake_parse_arguments(PANE "" "NAME;IDENTIFIER;CLASS;FOLDER;INSTALL;ICON" "" ${ARGN})
    if(NOT PANE_FOLDER)
        set(PANE_FOLDER "${PROJECT_BINARY_DIR}/PreferencePanes")
    endif()
    set(bundle "${PANE_FOLDER}/${PANE_NAME}.prefPane")
    set(PANE_LIBRARY "${CMAKE_SHARED_MODULE_PREFIX}${target}${CMAKE_SHARED_MODULE_SUFFIX}")
    set(PANE_ICON_NAME "")
    if(PANE_ICON)
        get_filename_component(PANE_ICON_NAME "${PANE_ICON}" NAME)
        configure_file("${PANE_ICON}" "${bundle}/Contents/${PANE_ICON_NAME}" COPYONLY)
    endif()
    configure_file("${PROJECT_SOURCE_DIR}/cmake/Info.json.in" "${bundle}/Contents/Info.json" @ONLY)
    set_target_properties(${target} PROPERTIES LIBRARY_OUTPUT_DIRECTORY "${bundle}/Contents"
                                               OUTPUT_NAME "${target}")
    if(PANE_INSTALL)
        install(DIRECTORY "${bundle}" DESTINATION "${PANE_INSTALL}" USE_SOURCE_PERMISSIONS)
    endif()
endfunction()
