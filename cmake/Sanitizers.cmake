if(ZARVIL_SANITIZE)
    # Their reports name lines, which is all that -g1 keeps, and compile sooner for it.
    string(REGEX REPLACE "-g$" "-g1" CMAKE_CXX_FLAGS_DEBUG "${CMAKE_CXX_FLAGS_DEBUG}")
    add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all
                        -fno-omit-frame-pointer)
    if(ZARVIL_COCOA)
        # A bundle's classes and its host's have each their own type information.
        add_compile_options(-fno-sanitize=vptr)
    endif()
    add_link_options(-fsanitize=address,undefined)
endif()
