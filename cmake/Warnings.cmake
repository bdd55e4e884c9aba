# Link a target to this to build it with the project's warnings, all of them errors.
add_library(zarvil_warnings INTERFACE)
target_compile_options(
    zarvil_warnings
    INTERFACE -Wall
              -Wextra
              -Wpedantic
              -Wconversion
              -Wshadow
              -Werror
              # Before version 13 g++ sees overlaps in concatenated strings where none are.
              $<$<AND:$<CXX_COMPILER_ID:GNU>,$<VERSION_LESS:$<CXX_COMPILER_VERSION>,13>>:-Wno-restrict>)
