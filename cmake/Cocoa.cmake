# What the Cocoa front end is built with, as the target zarvil_cocoa_system: AppKit and
# PreferencePanes, of macOS or of GNUstep. ZARVIL_COCOA_SYSTEM names the folder of src/cocoa whose
# files serve this system. A machine that has neither builds everything else.
if(NOT APPLE)
    find_program(GNUSTEP_CONFIG gnustep-config)
    find_path(GNUSTEP_INCLUDE_DIR PreferencePanes/PreferencePanes.h PATH_SUFFIXES GNUstep)
    # Only GNU's compiler both compiles for this run-time library and handles its exceptions.
    find_program(ZARVIL_GOBJC gcc)
    find_program(ZARVIL_GOBJCXX g++)
    if(NOT GNUSTEP_CONFIG OR NOT GNUSTEP_INCLUDE_DIR OR NOT ZARVIL_GOBJC OR NOT ZARVIL_GOBJCXX)
        message(WARNING "GNUstep was not found: the Cocoa front end is left out")
        set(ZARVIL_COCOA OFF)
        return()
    endif()
    set(CMAKE_OBJC_COMPILER "${ZARVIL_GOBJC}")
    set(CMAKE_OBJCXX_COMPILER "${ZARVIL_GOBJCXX}")
endif()

enable_language(OBJC OBJCXX)
set(CMAKE_OBJCXX_EXTENSIONS OFF)
set(CMAKE_OBJCXX_VISIBILITY_PRESET hidden)
set(CMAKE_OBJC_VISIBILITY_PRESET hidden)

add_library(zarvil_cocoa_system INTERFACE)
if(APPLE)
    set(ZARVIL_COCOA_SYSTEM apple)
    set(CMAKE_OBJCXX_STANDARD 20)
    target_compile_options(zarvil_cocoa_system
                           INTERFACE $<$<COMPILE_LANGUAGE:OBJC,OBJCXX>:-fno-objc-arc>)
    target_link_libraries(
        zarvil_cocoa_system
        INTERFACE "-framework Cocoa" "-framework PreferencePanes" "-framework SecurityInterface"
                  "-framework Carbon")
else()
    set(ZARVIL_COCOA_SYSTEM gnustep)
    execute_process(COMMAND "${GNUSTEP_CONFIG}" --objc-flags OUTPUT_VARIABLE flags
                    OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
    if(flags STREQUAL "") # what it says when it finds no make to ask
        message(FATAL_ERROR "gnustep-config gives no flags: is make installed?")
    endif()
    execute_process(COMMAND "${GNUSTEP_CONFIG}" --gui-libs OUTPUT_VARIABLE libraries
                    OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
    separate_arguments(flags UNIX_COMMAND "${flags}")
    separate_arguments(libraries UNIX_COMMAND "${libraries}")
    # The rest are optimization, warnings and folders of the user's, which are not its affair.
    list(FILTER flags INCLUDE REGEX "^-(D|f|pthread)")
    list(FILTER libraries EXCLUDE REGEX "^-L/(root|home)/|^-rdynamic")
    target_compile_options(
        zarvil_cocoa_system
        INTERFACE $<$<COMPILE_LANGUAGE:OBJC,OBJCXX>:${flags}>
                  $<$<COMPILE_LANGUAGE:OBJC>:-std=c11>
                  # GNU's compiler finds them in the accessors that it makes itself.
                  $<$<COMPILE_LANGUAGE:OBJCXX>:-Wno-unused-parameter>
                  $<$<COMPILE_LANGUAGE:OBJCXX>:-std=c++20 -fobjc-call-cxx-cdtors>)
    target_include_directories(zarvil_cocoa_system SYSTEM INTERFACE "${GNUSTEP_INCLUDE_DIR}")
    target_link_libraries(zarvil_cocoa_system INTERFACE ${libraries} PreferencePanes)
endif()
