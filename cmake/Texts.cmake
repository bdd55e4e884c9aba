# The texts in every language, one file each, of which only the user's is ever read:
#   zarvil_texts(target FOLDER)
# builds them with the target into the folder where it will look for them.
find_package(Qt6 REQUIRED COMPONENTS Core)
find_program(ZARVIL_LRELEASE NAMES lrelease lrelease6 REQUIRED
             HINTS "${QT6_INSTALL_PREFIX}/${QT6_INSTALL_BINS}")

function(zarvil_texts target folder)
    file(GLOB ts_files CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/translations/zarvil_*.ts")
    set(qm_files "")
    foreach(ts IN LISTS ts_files)
        cmake_path(GET ts STEM name)
        set(qm "${folder}/${name}.qm")
        add_custom_command(
            OUTPUT "${qm}"
            COMMAND "${CMAKE_COMMAND}" -E make_directory "${folder}"
            COMMAND "${ZARVIL_LRELEASE}" -silent "${ts}" -qm "${qm}"
            DEPENDS "${ts}" VERBATIM)
        list(APPEND qm_files "${qm}")
    endforeach()
    add_custom_target(${target}_texts DEPENDS ${qm_files})
    add_dependencies(${target} ${target}_texts)
endfunction()
