if(ZARVIL_SANITIZE)
    add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all
                        -fno-omit-frame-pointer)
    if(ZARVIL_COCOA)
        # A bundle's classes and its host's have each their own type information.
        add_compile_options(-fno-sanitize=vptr)
    endif()
    add_link_options(-fsanitize=address,undefined)
endif()
