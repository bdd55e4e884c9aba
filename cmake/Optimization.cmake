# Most code runs once a click, and the less there is of it the sooner the pane is there: it is made
# small, and what nothing calls is dropped. What draws or holds long lists asks to be fast:
#   zarvil_fast(TARGET...)
set(optimized $<NOT:$<CONFIG:Debug>>)
add_compile_options("$<${optimized}:-Os;-ffunction-sections;-fdata-sections>")
if(NOT APPLE)
    add_link_options($<${optimized}:-Wl,--gc-sections>)
endif()
function(zarvil_fast)
    foreach(target IN LISTS ARGN)
        target_compile_options(${target} PRIVATE $<$<NOT:$<CONFIG:Debug>>:-O3>)
    endforeach()
endfunction()
