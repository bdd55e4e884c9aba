if(ZARVIL_SANITIZE)
    # Their reports name lines, which is all that -g1 keeps, and compile sooner for it.
    string(REGEX REPLACE "-g$" "-g1" CMAKE_CXX_FLAGS_DEBUG "${CMAKE_CXX_FLAGS_DEBUG}")
    # Not the check of dynamic types: it needs a descriptor to spare, which tests of a lack of them do
    # not leave it, and a Cocoa bundle's classes and its host's have each their own type information.
    add_compile_options(-fsanitize=address,undefined -fno-sanitize=vptr -fno-sanitize-recover=all
                        -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
elseif(ZARVIL_SANITIZE_THREADS)
    string(REGEX REPLACE "-g$" "-g1" CMAKE_CXX_FLAGS_DEBUG "${CMAKE_CXX_FLAGS_DEBUG}")
    add_compile_options(-fsanitize=thread -fno-omit-frame-pointer)
    add_link_options(-fsanitize=thread)
endif()
if(ZARVIL_FUZZ)
    # Coverage of edges tells the fuzzer which inputs are news. That of comparisons would take most of
    # the time and say little: hardly any input is read as its bytes stand.
    add_compile_options(-fsanitize=fuzzer-no-link -fno-sanitize-coverage=trace-cmp)
endif()
