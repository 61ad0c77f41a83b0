# What every target of the project shares: the language, the warnings, the sanitizers and the
# project's root as the place that includes are written from.

function(zentaro_common target)
    target_compile_features(${target} PUBLIC cxx_std_20)
    set_target_properties(${target} PROPERTIES CXX_EXTENSIONS OFF POSITION_INDEPENDENT_CODE ON)
    target_include_directories(${target} PUBLIC "${PROJECT_SOURCE_DIR}")
    target_compile_definitions(${target} PRIVATE QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII
                                                 QT_NO_FOREACH QT_NO_KEYWORDS)
    target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wconversion
                                             -Wno-sign-conversion -Woverloaded-virtual
                                             $<$<CXX_COMPILER_ID:GNU>:-Wshadow=local>)
    if(ZENTARO_WARNINGS_AS_ERRORS)
        target_compile_options(${target} PRIVATE -Werror)
    endif()
    if(ZENTARO_SANITIZE)
        target_compile_options(${target} PUBLIC -fsanitize=${ZENTARO_SANITIZE}
                                                -fno-sanitize-recover=all -fno-omit-frame-pointer)
        target_link_options(${target} PUBLIC -fsanitize=${ZENTARO_SANITIZE})
    endif()
endfunction()

# zentaro_library(<name> <sources...>): one static library, one floor of the house.
function(zentaro_library name)
    add_library(${name} STATIC ${ARGN})
    zentaro_common(${name})
    if(ZENTARO_BUILD_FUZZERS) # which see what an input reaches, and try as many as they can
        target_compile_options(${name} PRIVATE -fsanitize=fuzzer-no-link -O1)
    endif()
endfunction()

# zentaro_program(<name> <sources...>): one program, in bin/.
function(zentaro_program name)
    add_executable(${name} ${ARGN})
    zentaro_common(${name})
endfunction()
